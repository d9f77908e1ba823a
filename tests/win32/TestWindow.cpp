#include "tests/win32/TestWindow.h"

namespace tests {

namespace {
constexpr UINT hangMessage = WM_APP;
}

TestWindow::TestWindow(Look look) : slowness_(look.slowness) {
    const HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    thread_ = std::thread([this, &look, ready] { run(look, ready); });
    WaitForSingleObject(ready, INFINITE);
    CloseHandle(ready);
}

TestWindow::~TestWindow() {
    PostThreadMessageW(threadId_, WM_QUIT, 0, 0);
    thread_.join();
}

void TestWindow::hang(std::chrono::milliseconds time) const {
    PostMessageW(handle_, hangMessage, static_cast<WPARAM>(time.count()), 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
}

void TestWindow::run(const Look& look, HANDLE ready) {
    WNDCLASSW description{};
    description.lpfnWndProc = &TestWindow::answer;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = className;
    RegisterClassW(&description); // fails where an earlier window has done it
    handle_ = CreateWindowExW(look.extendedStyle, className, look.title.c_str(), look.style, 10, 10, 300, 200,
                              look.owner, nullptr, description.hInstance, nullptr);
    SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    threadId_ = GetCurrentThreadId();
    SetEvent(ready);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    DestroyWindow(handle_);
}

LRESULT CALLBACK TestWindow::answer(HWND window, UINT message, WPARAM word, LPARAM data) {
    auto* const self = reinterpret_cast<TestWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == hangMessage) {
        std::this_thread::sleep_for(std::chrono::milliseconds(word));
        return 0;
    }
    if (message == WM_KEYDOWN && word == VK_ESCAPE && self != nullptr) {
        std::this_thread::sleep_for(self->slowness_);
        ++self->escapes_;
        return 0;
    }
    return DefWindowProcW(window, message, word, data);
}

} // namespace tests
