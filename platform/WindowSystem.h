#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// A window of the system; 0 for none.
using WindowHandle = std::int32_t;

/// The system's windows. No call raises: failures are read from the results.
class WindowSystem {
public:
    static constexpr std::int32_t showMaximized = 3;               ///< SW_SHOWMAXIMIZED
    static constexpr std::uint32_t dialogModalFrame = 0x00000001U; ///< WS_EX_DLGMODALFRAME
    static constexpr std::uint32_t closeMessage = 16;              ///< WM_CLOSE
    static constexpr std::size_t textBuffer = 255;                 ///< characters read of a title or class name

    virtual ~WindowSystem() = default;

    /// The first top-level window of a class, whatever its title.
    virtual WindowHandle findWindow(std::u16string_view className) = 0;
    /// Class name of a window; nothing where the window does not exist.
    virtual std::optional<std::u16string> className(WindowHandle window) = 0;
    /// Title of a window; empty where it has none.
    virtual std::u16string title(WindowHandle window) = 0;
    /// True also for one that hangs: the system may have hidden it and show a picture of it in its place.
    virtual bool isVisible(WindowHandle window) = 0;
    virtual bool isIconic(WindowHandle window) = 0;
    /// True for a window whose program has answered no message for a while.
    virtual bool isHung(WindowHandle window) = 0;
    virtual std::uint32_t extendedStyle(WindowHandle window) = 0;
    /// Parent or owner of a window.
    virtual WindowHandle parent(WindowHandle window) = 0;
    /// The window above a window in Z order (GW_HWNDPREV).
    virtual WindowHandle previous(WindowHandle window) = 0;
    virtual void show(WindowHandle window, std::int32_t command) = 0;
    virtual bool setForeground(WindowHandle window) = 0;
    /// Sends a message without arguments and waits for the answer, unless the window's process hangs.
    virtual void send(WindowHandle window, std::uint32_t message) = 0;
};

} // namespace platform
