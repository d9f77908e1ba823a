#pragma once

#include "automation/Unmoved.h"

#include <windows.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>

namespace tests {

/// A window with a thread of its own that answers for it, for the length of a scope.
class TestWindow : automation::Unmoved {
public:
    struct Look {
        std::wstring title = L"Une fenêtre";
        DWORD style = WS_OVERLAPPEDWINDOW;
        DWORD extendedStyle = 0;
        HWND owner = nullptr;
        std::chrono::milliseconds slowness{0}; ///< time that it takes over a key
    };

    explicit TestWindow(Look look);
    ~TestWindow();

    static constexpr const wchar_t* className = L"K73053 test window";

    [[nodiscard]] HWND handle() const noexcept { return handle_; }
    [[nodiscard]] bool isOpen() const noexcept { return IsWindow(handle_) != FALSE; }
    /// Escape keys that it has finished with.
    [[nodiscard]] int escapes() const noexcept { return escapes_; }
    /// Makes it stop answering for a while.
    void hang(std::chrono::milliseconds time) const;

private:
    void run(const Look& look, HANDLE ready);
    static LRESULT CALLBACK answer(HWND window, UINT message, WPARAM word, LPARAM data);

    std::atomic<HWND> handle_ = nullptr;
    std::atomic<DWORD> threadId_ = 0;
    std::atomic<int> escapes_ = 0;
    std::chrono::milliseconds slowness_;
    std::thread thread_;
};

} // namespace tests
