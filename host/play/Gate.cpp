#include "host/play/Gate.h"

#include "automation/Text.h"

#include <random>

namespace host {

namespace {

HttpResponse refused(int status, const std::string& reason) {
    return {status, "text/plain", reason + "\n"};
}

/// True where a text begins with a secret, in a time that does not depend on how much of it is right.
bool beginsWithSecret(std::string_view text, std::string_view secret) {
    if (text.size() < secret.size()) {
        return false;
    }
    unsigned difference = 0;
    for (std::size_t i = 0; i < secret.size(); ++i) {
        difference |=
            static_cast<unsigned char>(text[i]) ^ static_cast<unsigned>(static_cast<unsigned char>(secret[i]));
    }
    return difference == 0;
}

} // namespace

std::string secretOf(int bits) {
    std::random_device random;
    std::u16string digits;
    for (int made = 0; made < bits; made += 32) {
        digits += automation::hexadecimal(static_cast<std::int32_t>(random()));
    }
    return automation::toUtf8(digits);
}

Gate::Gate(std::uint16_t port)
    : host_("127.0.0.1:" + std::to_string(port)), origin_("http://" + host_), path_("/" + secretOf(128) + "/") {}

std::optional<HttpResponse> Gate::refusal(const HttpRequest& request) const {
    const bool reads = request.method == "GET";
    if (!reads && request.method != "POST") {
        return refused(405, "Pages are read by GET, and gestures made by POST.");
    }
    if (request.host != host_) {
        return refused(421, "This computer answers under " + origin_ + " only.");
    }
    if (request.origin.empty() ? !reads : request.origin != origin_) {
        return refused(403, "Only its own page may ask for this.");
    }
    if (!beginsWithSecret(request.target, path_)) {
        return refused(403, "Open the whole address that exercise-host has printed: the secret in it is missing.");
    }
    return std::nullopt;
}

} // namespace host
