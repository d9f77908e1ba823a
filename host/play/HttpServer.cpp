#include "host/play/HttpServer.h"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/signal_set.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>

#include <csignal>
#include <optional>
#include <stdexcept>

namespace host {

namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = boost::beast::http;
using asio::ip::tcp;
using boost::system::error_code;

std::string text(boost::string_view view) {
    return {view.data(), view.size()};
}

/// What is said of a request that cannot be read; nothing where nobody waits for an answer.
std::optional<HttpResponse> refusalOf(error_code failed) {
    if (failed == http::error::body_limit) {
        return HttpResponse{413, "text/plain", "The request is too large.\n"};
    }
    if (failed == http::error::header_limit || failed == http::error::buffer_overflow) {
        return HttpResponse{431, "text/plain", "The header of the request is too large.\n"};
    }
    const bool isOver = failed == http::error::end_of_stream || failed == http::error::partial_message;
    const bool isOfProtocol = failed.category() == make_error_code(http::error::bad_method).category();
    return isOfProtocol && !isOver ? std::optional(HttpResponse{400, "text/plain", "The request is malformed.\n"})
                                   : std::nullopt;
}

/// One connection: request and answer in turn, until either side has enough.
class Connection : public std::enable_shared_from_this<Connection> {
public:
    /// The handler must outlive the connection; `lease` is held as long as the connection is.
    Connection(tcp::socket socket, const HttpServer::Handler& handler, std::shared_ptr<void> lease)
        : stream_(std::move(socket)), handler_(handler), lease_(std::move(lease)) {}

    void read() {
        parser_.emplace();
        parser_->header_limit(HttpServer::mostHeader);
        parser_->body_limit(HttpServer::mostBody);
        stream_.expires_after(HttpServer::patience);
        http::async_read(stream_, buffer_, *parser_,
                         [self = shared_from_this()](error_code failed, std::size_t) { self->take(failed); });
    }

    /// Says why nothing more is taken, and closes.
    void refuse(const HttpResponse& response) { write(response, false); }

private:
    void take(error_code failed) {
        if (!failed) {
            write(answer(), parser_->get().keep_alive());
        } else if (const auto refusal = refusalOf(failed)) {
            refuse(*refusal);
        }
    }

    [[nodiscard]] HttpResponse answer() {
        const auto& message = parser_->get();
        try {
            return handler_({text(message.method_string()), text(message.target()), text(message[http::field::host]),
                             text(message[http::field::origin]), message.body()});
        } catch (const std::exception& error) {
            return {500, "text/plain", std::string(error.what()) + '\n'};
        }
    }

    void write(const HttpResponse& response, bool goesOn) {
        constexpr const char* policy = "default-src 'none'; script-src 'self'; style-src 'self'; connect-src 'self'; "
                                       "img-src data:; base-uri 'none'; form-action 'none'; frame-ancestors 'none'";
        message_ = {};
        message_.result(static_cast<unsigned>(response.status));
        message_.set(http::field::content_type, response.type + "; charset=utf-8");
        message_.set(http::field::cache_control, "no-store");
        message_.set("Content-Security-Policy", policy);
        message_.set("Referrer-Policy", "no-referrer");
        message_.set("X-Frame-Options", "DENY");
        message_.set("X-Content-Type-Options", "nosniff");
        message_.set("Cross-Origin-Resource-Policy", "same-origin");
        message_.body() = response.body;
        message_.keep_alive(goesOn);
        message_.prepare_payload();
        stream_.expires_after(HttpServer::patience);
        http::async_write(stream_, message_, [self = shared_from_this(), goesOn](error_code failed, std::size_t) {
            if (failed) {
                return;
            }
            if (goesOn) {
                self->read();
            } else {
                self->leave();
            }
        });
    }

    /// Ends the own side and reads what still comes: closing at once would take the answer from who is still sending.
    void leave() {
        error_code ignored;
        stream_.socket().shutdown(tcp::socket::shutdown_send, ignored);
        stream_.expires_after(std::chrono::seconds(2));
        drain(mostDrained);
    }

    void drain(std::size_t left) {
        stream_.async_read_some(asio::buffer(rest_),
                                [self = shared_from_this(), left](error_code failed, std::size_t got) {
                                    if (!failed && got < left) {
                                        self->drain(left - got);
                                    }
                                });
    }

    static constexpr std::size_t mostDrained = 4'000'000;

    beast::tcp_stream stream_;
    const HttpServer::Handler& handler_;
    std::shared_ptr<void> lease_;
    beast::flat_buffer buffer_{HttpServer::mostHeader + HttpServer::mostBody};
    std::optional<http::request_parser<http::string_body>> parser_;
    http::response<http::string_body> message_;
    std::array<char, 4096> rest_{};
};

} // namespace

/// All that knows the library.
class HttpServer::Engine {
public:
    explicit Engine(Handler handler)
        : handler_(std::move(handler)), acceptor_(context_, {asio::ip::address_v4::loopback(), 0}),
          signals_(context_, SIGINT, SIGTERM), timer_(context_) {
#ifdef SIGHUP
        signals_.add(SIGHUP);
#endif
        signals_.async_wait([this](error_code failed, int) {
            if (!failed) {
                context_.stop();
            }
        });
        accept();
        tick();
    }

    [[nodiscard]] std::uint16_t port() const {
        return acceptor_.local_endpoint().port();
    }
    void run() {
        context_.run();
    }
    void stop() {
        context_.stop();
    }

    std::function<void()> onTick;

private:
    void accept() {
        acceptor_.async_accept([this](error_code failed, tcp::socket socket) {
            if (failed == asio::error::operation_aborted) {
                return;
            }
            if (!failed) {
                welcome(std::move(socket));
            }
            accept();
        });
    }

    void welcome(tcp::socket socket) {
        const bool isFull = static_cast<std::size_t>(leases_.use_count()) > mostConnections;
        const auto connection = std::make_shared<Connection>(std::move(socket), handler_, isFull ? nullptr : leases_);
        if (isFull) {
            connection->refuse({503, "text/plain", "Too many connections are open: close some tabs.\n"});
        } else {
            connection->read();
        }
    }

    void tick() {
        timer_.expires_after(std::chrono::seconds(1));
        timer_.async_wait([this](error_code failed) {
            if (failed) {
                return;
            }
            if (onTick) {
                onTick();
            }
            tick();
        });
    }

    Handler handler_;
    std::shared_ptr<int> leases_ = std::make_shared<int>(); ///< each connection holds one
    asio::io_context context_{1};
    tcp::acceptor acceptor_;
    asio::signal_set signals_;
    asio::steady_timer timer_;
};

HttpServer::HttpServer(Handler handler) {
    try {
        engine_ = std::make_unique<Engine>(std::move(handler));
    } catch (const boost::system::system_error& error) {
        throw std::runtime_error(std::string("no port of this computer can be listened on: ") + error.what());
    }
}

HttpServer::~HttpServer() = default;

std::uint16_t HttpServer::port() const noexcept {
    return engine_->port();
}

void HttpServer::onTick(std::function<void()> tick) {
    engine_->onTick = std::move(tick);
}

void HttpServer::run() {
    engine_->run();
}

void HttpServer::stop() {
    engine_->stop();
}

} // namespace host
