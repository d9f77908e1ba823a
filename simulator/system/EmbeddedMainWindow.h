#pragma once

#include "simulator/process/MainWindow.h"
#include "simulator/system/EmbeddedWindows.h"

namespace simulator {

/// PowerPoint's main window and dialogs among the windows of a computer in memory.
class EmbeddedMainWindow final : public MainWindow {
public:
    static constexpr std::u16string_view frameClass = u"PP11FrameClass";
    static constexpr std::u16string_view dialogClass = u"#32770";

    /// Makes the window, invisible. `onClose` is what WM_CLOSE does. `windows` must outlive this object.
    EmbeddedMainWindow(EmbeddedWindows& windows, std::function<void()> onClose);
    ~EmbeddedMainWindow() override;

    [[nodiscard]] platform::WindowHandle handle() const override { return handle_; }
    [[nodiscard]] bool isVisible() const override { return windows_.isVisible(handle_); }
    void setVisible(bool visible) override;
    [[nodiscard]] PpWindowState state() const override;
    void setState(PpWindowState state) override;
    void setTitle(std::u16string_view title) override { windows_.setTitle(handle_, title); }
    [[nodiscard]] bool isActive() const override;
    void activate() override { windows_.setForeground(handle_); }
    void openDialog(std::u16string_view title) override;
    [[nodiscard]] std::size_t dialogs() const override;
    void closeDialog() override;
    void close() override;

private:
    /// The dialog opened last, or the main window where none is open.
    [[nodiscard]] platform::WindowHandle top() const;

    EmbeddedWindows& windows_;
    platform::WindowHandle handle_;
};

} // namespace simulator
