#pragma once

#include "automation/Unmoved.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace host {

/// What a browser asks for.
struct HttpRequest {
    std::string method; ///< "GET"
    std::string target; ///< "/path?query"
    std::string host;   ///< the header of that name
    std::string origin; ///< the header of that name; empty where there is none
    std::string body;
};

struct HttpResponse {
    int status = 200;
    std::string type; ///< of the body: "text/html"
    std::string body;
};

/// Answers requests on the loopback address, one after the other and all on the thread that runs it. Requests that are
/// malformed, too large or too slow, and connections beyond a number, are refused before the handler sees them.
class HttpServer : automation::Unmoved {
public:
    using Handler = std::function<HttpResponse(const HttpRequest&)>;

    /// Listens on a port of the system's choice. Raises std::runtime_error where there is none.
    explicit HttpServer(Handler handler);
    ~HttpServer();

    [[nodiscard]] std::uint16_t port() const noexcept;
    /// Calls `tick` about once a second while the server runs.
    void onTick(std::function<void()> tick);
    /// Answers until it is stopped, or the user interrupts the program.
    void run();
    void stop();

    static constexpr std::size_t mostHeader = 8192;
    static constexpr std::size_t mostBody = 65536;
    static constexpr std::size_t mostConnections = 64;
    static constexpr std::chrono::seconds patience{10}; ///< for a request, and between two of one connection

private:
    class Engine;
    std::unique_ptr<Engine> engine_;
};

} // namespace host
