#pragma once

#include <string>

namespace host {

/// Colours for a terminal whose user likes them; elsewhere texts stay as they are.
struct Ink {
    bool isColoured = false;

    [[nodiscard]] std::string good(const std::string& text) const { return in("32", text); }
    [[nodiscard]] std::string bad(const std::string& text) const { return in("31", text); }

    [[nodiscard]] std::string in(const char* colour, const std::string& text) const {
        return isColoured ? std::string("\x1b[") + colour + 'm' + text + "\x1b[0m" : text;
    }
};

} // namespace host
