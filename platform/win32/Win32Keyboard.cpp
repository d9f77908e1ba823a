#include "platform/win32/Win32Keyboard.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "automation/Unmoved.h"

#include <windows.h>

#include <array>
#include <chrono>
#include <thread>

namespace platform {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto untilTaken = 2000ms;
constexpr auto step = 5ms;

constexpr std::u16string_view escape = u"{ESC}";

/// Raises PermissionDenied where the desktop takes no keys, as a locked one.
void press(WORD key) {
    std::array<INPUT, 2> strokes{};
    for (INPUT& stroke : strokes) {
        stroke.type = INPUT_KEYBOARD;
        stroke.ki.wVk = key;
    }
    strokes[1].ki.dwFlags = KEYEVENTF_KEYUP;
    const auto count = static_cast<UINT>(strokes.size());
    if (SendInput(count, strokes.data(), sizeof(INPUT)) != count) {
        automation::raise(automation::RunTimeError::PermissionDenied);
    }
}

/// The thread that has the keyboard, with its state of the keys shared for the length of a scope.
class ActiveThread : automation::Unmoved {
public:
    ActiveThread()
        : window_(GetForegroundWindow()), thread_(GetWindowThreadProcessId(window_, nullptr)),
          isShared_(!isOwn() && AttachThreadInput(GetCurrentThreadId(), thread_, TRUE) != FALSE) {}
    ~ActiveThread() {
        if (isShared_) {
            AttachThreadInput(GetCurrentThreadId(), thread_, FALSE);
        }
    }

    /// Presses a key and waits until the thread has taken it from its queue: then the key has changed its state.
    void take(WORD key) const {
        const bool before = isToggled(key);
        press(key);
        const auto end = Clock::now() + untilTaken;
        while (isShared_ && isToggled(key) == before && Clock::now() < end) {
            std::this_thread::sleep_for(step);
        }
    }

    /// Waits until what was taken is processed: a thread answers messages only in between.
    void finish() const {
        if (isOwn()) {
            processOwnMessages();
        } else {
            SendMessageTimeoutW(window_, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, static_cast<UINT>(untilTaken.count()),
                                nullptr);
        }
    }

private:
    static void processOwnMessages() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            if (message.message == WM_QUIT) {
                PostQuitMessage(static_cast<int>(message.wParam)); // it is for the host's own loop
                return;
            }
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    [[nodiscard]] bool isOwn() const noexcept { return thread_ == GetCurrentThreadId(); }
    [[nodiscard]] static bool isToggled(WORD key) noexcept { return (GetKeyState(key) & 1) != 0; }

    HWND window_;
    DWORD thread_;
    bool isShared_;
};

} // namespace

void Win32Keyboard::send(std::u16string_view keys) {
    if (!automation::equalIgnoringCase(keys, escape)) {
        automation::raise(automation::RunTimeError::InvalidProcedureCall);
    }
    const ActiveThread active;
    active.take(VK_ESCAPE);
    active.finish();
}

} // namespace platform
