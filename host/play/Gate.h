#pragma once

#include "host/play/HttpServer.h"

#include <optional>

namespace host {

/// Where a page is served, and who may come in there: a browser on this computer that was given the address.
class Gate {
public:
    /// Makes up a secret of 128 bits.
    explicit Gate(std::uint16_t port);

    /// The address of the page, the secret in it.
    [[nodiscard]] std::string address() const { return origin_ + path_; }
    /// Why a request may not pass; nothing for one that may.
    [[nodiscard]] std::optional<HttpResponse> refusal(const HttpRequest& request) const;
    /// What a request that may pass asks for: what stands behind the secret, its query left out.
    [[nodiscard]] std::string nameIn(const HttpRequest& request) const {
        return request.target.substr(path_.size(), request.target.find('?') - path_.size());
    }

private:
    std::string host_;   ///< "127.0.0.1:port"
    std::string origin_; ///< "http://127.0.0.1:port"
    std::string path_;   ///< "/secret/"
};

/// So many random bits in hexadecimal, a multiple of 32, from the system's source of secrets.
[[nodiscard]] std::string secretOf(int bits);

} // namespace host
