#pragma once

#include "platform/Keyboard.h"

namespace platform {

/// The keyboard of the desktop.
class Win32Keyboard final : public Keyboard {
public:
    /// Knows the one key that the module sends, "{ESC}"; raises InvalidProcedureCall (5) for anything else, and
    /// PermissionDenied (70) where the desktop takes no keys. Waits two seconds at most for the window that has the
    /// keyboard.
    void send(std::u16string_view keys) override;
};

} // namespace platform
