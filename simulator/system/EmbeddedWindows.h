#pragma once

#include "platform/WindowSystem.h"

#include <functional>
#include <vector>

namespace simulator {

/// What a window is made with.
struct WindowTraits {
    std::u16string className{};
    std::u16string title{};
    platform::WindowHandle owner = 0; ///< the window that it stands above and goes with
    std::uint32_t extendedStyle = 0;
    bool visible = true;
    /// What WM_CLOSE does; where nothing is said, it destroys the window.
    std::function<void()> onClose{};
};

/// The top-level windows of a computer, in memory: a list in Z order. An owned window stands above its owner and is
/// destroyed with it.
class EmbeddedWindows final : public platform::WindowSystem {
public:
    enum class Placement : std::uint8_t { Normal, Minimized, Maximized };

    static constexpr std::int32_t showNothing = 0;   ///< SW_HIDE
    static constexpr std::int32_t showNormal = 1;    ///< SW_SHOWNORMAL
    static constexpr std::int32_t showMinimized = 2; ///< SW_SHOWMINIMIZED
    static constexpr std::int32_t showAsIs = 5;      ///< SW_SHOW
    static constexpr std::int32_t minimize = 6;      ///< SW_MINIMIZE
    static constexpr std::int32_t restore = 9;       ///< SW_RESTORE

    /// Makes a window above all others. Handles are never used again.
    platform::WindowHandle create(WindowTraits traits);
    /// Destroys a window and those that it owns; nothing happens where it does not exist.
    void destroy(platform::WindowHandle window);
    void setTitle(platform::WindowHandle window, std::u16string_view title);
    [[nodiscard]] Placement placement(platform::WindowHandle window) const;
    /// The window that gets the keys: the topmost visible one; 0 where there is none.
    [[nodiscard]] platform::WindowHandle foreground() const;
    /// The topmost window owned by a window; 0 where it owns none.
    [[nodiscard]] platform::WindowHandle ownedBy(platform::WindowHandle window) const;

    platform::WindowHandle findWindow(std::u16string_view className) override;
    std::optional<std::u16string> className(platform::WindowHandle window) override;
    std::u16string title(platform::WindowHandle window) override;
    bool isVisible(platform::WindowHandle window) override;
    bool isIconic(platform::WindowHandle window) override;
    /// False: they all answer at once.
    bool isHung(platform::WindowHandle window) override;
    std::uint32_t extendedStyle(platform::WindowHandle window) override;
    platform::WindowHandle parent(platform::WindowHandle window) override;
    platform::WindowHandle previous(platform::WindowHandle window) override;
    void show(platform::WindowHandle window, std::int32_t command) override;
    /// Brings a window to the top, with the windows that it owns above it.
    bool setForeground(platform::WindowHandle window) override;
    void send(platform::WindowHandle window, std::uint32_t message) override;

private:
    struct Window {
        platform::WindowHandle handle = 0;
        WindowTraits traits;
        Placement placement = Placement::Normal;
        bool restoresMaximized = false; ///< a minimised window that was maximised
    };

    [[nodiscard]] const Window* find(platform::WindowHandle window) const;
    [[nodiscard]] Window* find(platform::WindowHandle window);
    /// The window at the end of a chain of owners.
    [[nodiscard]] platform::WindowHandle root(platform::WindowHandle window) const;
    /// Puts a window below all others, with the windows that it owns.
    void sendToBack(platform::WindowHandle window);
    void reorder(const std::function<bool(const Window&)>& comesFirst);
    static void place(Window& window, Placement placement);

    std::vector<Window> windows_; ///< from the top down
    platform::WindowHandle last_ = 0x20000;
};

} // namespace simulator
