#pragma once

#include "platform/WindowSystem.h"

namespace platform {

/// The windows of the desktop. Handles have 32 significant bits on 64-bit Windows too.
class Win32Windows final : public WindowSystem {
public:
    WindowHandle findWindow(std::u16string_view className) override;
    std::optional<std::u16string> className(WindowHandle window) override;
    std::u16string title(WindowHandle window) override;
    bool isVisible(WindowHandle window) override;
    bool isIconic(WindowHandle window) override;
    bool isHung(WindowHandle window) override;
    std::uint32_t extendedStyle(WindowHandle window) override;
    WindowHandle parent(WindowHandle window) override;
    WindowHandle previous(WindowHandle window) override;
    void show(WindowHandle window, std::int32_t command) override;
    bool setForeground(WindowHandle window) override;
    /// Waits five seconds at most, less where the window hangs.
    void send(WindowHandle window, std::uint32_t message) override;
};

} // namespace platform
