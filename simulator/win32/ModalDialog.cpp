#include "simulator/win32/ModalDialog.h"

namespace simulator::standin {

namespace {

/// A dialog template without controls, followed by an empty menu, class and title.
struct EmptyTemplate {
    DLGTEMPLATE header{};
    WORD menu = 0;
    WORD windowClass = 0;
    WORD title = 0;
};

EmptyTemplate usualTemplate() {
    EmptyTemplate result;
    result.header.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | DS_MODALFRAME | DS_SETFOREGROUND;
    result.header.x = 20;
    result.header.y = 20;
    result.header.cx = 200;
    result.header.cy = 100;
    return result;
}

} // namespace

ModalDialog::ModalDialog(HWND owner, const std::wstring& title, std::function<void(HWND)> onClose)
    : owner_(owner), onClose_(std::move(onClose)) {
    const EmptyTemplate look = usualTemplate();
    handle_ = CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &look.header, owner, &ModalDialog::answer,
                                         reinterpret_cast<LPARAM>(this));
    SetWindowTextW(handle_, title.c_str());
    EnableWindow(owner_, FALSE);
}

ModalDialog::~ModalDialog() {
    // In this order, or another program would come to the front.
    EnableWindow(owner_, TRUE);
    SetWindowLongPtrW(handle_, DWLP_USER, 0);
    DestroyWindow(handle_);
}

INT_PTR CALLBACK ModalDialog::answer(HWND dialog, UINT message, WPARAM word, LPARAM data) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(dialog, DWLP_USER, data);
        return TRUE;
    }
    const bool isClosing = message == WM_CLOSE || (message == WM_COMMAND && LOWORD(word) == IDCANCEL);
    const auto* const self = reinterpret_cast<const ModalDialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (!isClosing || self == nullptr) {
        return FALSE;
    }
    // A dialog that waits for one of its own does not close before that one.
    if (IsWindowEnabled(dialog) == FALSE) {
        return TRUE;
    }
    const auto onClose = self->onClose_;
    onClose(dialog);
    return TRUE;
}

} // namespace simulator::standin
