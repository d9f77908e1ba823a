#pragma once

#include "platform/Keyboard.h"

namespace platform {

/// The keyboard of the desktop.
class Win32Keyboard final : public Keyboard {
public:
    /// Takes named keys only ("{ESC}", "{F5}{ENTER}"); raises InvalidProcedureCall (5) for anything else. Waits two
    /// seconds at most for the window that has the keyboard.
    void send(std::u16string_view keys) override;
};

} // namespace platform
