#include "simulator/win32/FrameWindow.h"

#include "automation/com/WideText.h"
#include "simulator/win32/StandInIdentity.h"

#include <utility>

namespace simulator::standin {

namespace {

HWND createFrame(WNDPROC procedure) {
    WNDCLASSW description{};
    description.lpfnWndProc = procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_APPWORKSPACE + 1);
    description.lpszClassName = frameClass;
    RegisterClassW(&description);
    return CreateWindowExW(0, frameClass, L"Microsoft PowerPoint", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                           1024, 768, nullptr, nullptr, description.hInstance, nullptr);
}

int showCommand(PpWindowState state) noexcept {
    switch (state) {
    case ppWindowMinimized: return SW_SHOWMINIMIZED;
    case ppWindowMaximized: return SW_SHOWMAXIMIZED;
    default: return SW_SHOWNORMAL;
    }
}

} // namespace

FrameWindow::FrameWindow(std::function<void()> onClose)
    : onClose_(std::move(onClose)), handle_(createFrame(&FrameWindow::answer)) {
    SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

FrameWindow::~FrameWindow() {
    FrameWindow::close();
}

platform::WindowHandle FrameWindow::handle() const {
    return static_cast<platform::WindowHandle>(reinterpret_cast<std::intptr_t>(handle_));
}

void FrameWindow::setVisible(bool visible) {
    ShowWindow(handle_, visible ? SW_SHOW : SW_HIDE);
}

PpWindowState FrameWindow::state() const {
    if (IsIconic(handle_) != FALSE) {
        return ppWindowMinimized;
    }
    return IsZoomed(handle_) != FALSE ? ppWindowMaximized : ppWindowNormal;
}

void FrameWindow::setState(PpWindowState state) {
    const bool visible = isVisible();
    ShowWindow(handle_, showCommand(state));
    if (!visible) {
        setVisible(false);
    }
}

void FrameWindow::setTitle(std::u16string_view title) {
    SetWindowTextW(handle_, automation::com::WideText(title).get());
}

void FrameWindow::openDialog(std::u16string_view title) {
    const std::wstring caption(title.begin(), title.end());
    dialogs_.push_back(std::make_unique<ModalDialog>(top(), caption, [this](HWND dialog) { closeFrom(dialog); }));
}

void FrameWindow::closeDialog() {
    if (!dialogs_.empty()) {
        dialogs_.pop_back();
    }
}

void FrameWindow::close() {
    while (!dialogs_.empty()) {
        dialogs_.pop_back();
    }
    DestroyWindow(std::exchange(handle_, nullptr));
}

bool FrameWindow::takeDialogKey(MSG& message) const {
    return !dialogs_.empty() && IsDialogMessageW(dialogs_.back()->handle(), &message) != FALSE;
}

LRESULT CALLBACK FrameWindow::answer(HWND window, UINT message, WPARAM word, LPARAM data) {
    auto* const self = reinterpret_cast<FrameWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_CLOSE && self != nullptr) {
        const auto onClose = self->onClose_;
        onClose();
        return 0;
    }
    if (message == WM_KEYDOWN && word == VK_ESCAPE && self != nullptr) {
        ++self->escapes_;
        return 0;
    }
    return DefWindowProcW(window, message, word, data);
}

HWND FrameWindow::top() const {
    return dialogs_.empty() ? handle_ : dialogs_.back()->handle();
}

void FrameWindow::closeFrom(HWND dialog) {
    const auto found =
        std::find_if(dialogs_.begin(), dialogs_.end(), [dialog](const auto& open) { return open->handle() == dialog; });
    const auto above = static_cast<std::size_t>(dialogs_.end() - found);
    for (std::size_t i = 0; i < above; ++i) {
        dialogs_.pop_back();
    }
}

} // namespace simulator::standin
