#pragma once

#include "simulator/process/MainWindow.h"
#include "simulator/win32/ModalDialog.h"

#include <memory>

namespace simulator::standin {

/// PowerPoint's main window as a real one of the desktop, with the dialogs above it.
class FrameWindow final : public MainWindow {
public:
    /// Makes the window, invisible. `onClose` is what WM_CLOSE does.
    explicit FrameWindow(std::function<void()> onClose);
    ~FrameWindow() override;

    [[nodiscard]] platform::WindowHandle handle() const override;
    [[nodiscard]] bool isVisible() const override { return IsWindowVisible(handle_) != FALSE; }
    void setVisible(bool visible) override;
    [[nodiscard]] PpWindowState state() const override;
    void setState(PpWindowState state) override;
    void setTitle(std::u16string_view title) override;
    [[nodiscard]] bool isActive() const override { return GetForegroundWindow() == top(); }
    void activate() override { SetForegroundWindow(handle_); }
    void openDialog(std::u16string_view title) override;
    [[nodiscard]] std::size_t dialogs() const override { return dialogs_.size(); }
    void closeDialog() override;
    void close() override;

    /// True where a message was a key that the dialog in front has taken.
    [[nodiscard]] bool takeDialogKey(MSG& message) const;
    /// Escape keys that the window itself, not a dialog, has got.
    [[nodiscard]] std::int32_t escapes() const noexcept { return escapes_; }

private:
    static LRESULT CALLBACK answer(HWND window, UINT message, WPARAM word, LPARAM data);

    /// The dialog opened last, or the main window where none is open.
    [[nodiscard]] HWND top() const;
    /// Closes a dialog and those above it.
    void closeFrom(HWND dialog);

    std::function<void()> onClose_;
    HWND handle_ = nullptr;
    std::vector<std::unique_ptr<ModalDialog>> dialogs_; ///< the one in front last
    std::int32_t escapes_ = 0;
};

} // namespace simulator::standin
