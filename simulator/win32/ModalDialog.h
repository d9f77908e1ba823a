#pragma once

#include "automation/Unmoved.h"

#include <windows.h>

#include <functional>
#include <string>

namespace simulator::standin {

/// An empty modal dialog above a window, which cannot be used until the dialog is closed: by Escape, by WM_CLOSE, or
/// with this object.
class ModalDialog : automation::Unmoved {
public:
    /// `onClose` is called when the dialog is to be closed; it may destroy this object.
    ModalDialog(HWND owner, const std::wstring& title, std::function<void(HWND)> onClose);
    ~ModalDialog();

    [[nodiscard]] HWND handle() const noexcept { return handle_; }

private:
    static INT_PTR CALLBACK answer(HWND dialog, UINT message, WPARAM word, LPARAM data);

    HWND owner_;
    std::function<void(HWND)> onClose_;
    HWND handle_ = nullptr;
};

} // namespace simulator::standin
