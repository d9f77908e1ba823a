#pragma once

#include <string_view>

namespace platform {

/// The keyboard of the active window.
class Keyboard {
public:
    virtual ~Keyboard() = default;

    /// Sends keys written as macros write them ("{ESC}") to the active window and waits until they are processed.
    virtual void send(std::u16string_view keys) = 0;
};

} // namespace platform
