#include "platform/win32/Win32Keyboard.h"

#include "automation/Error.h"
#include "automation/Text.h"

#include <windows.h>

#include <array>
#include <chrono>
#include <thread>
#include <utility>
#include <vector>

namespace platform {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using KeyCode = WORD;

constexpr auto patience = 2000ms;
constexpr auto step = 5ms;

constexpr std::array<std::pair<std::u16string_view, KeyCode>, 16> namedKeys{{
    {u"ESC", VK_ESCAPE},
    {u"ENTER", VK_RETURN},
    {u"TAB", VK_TAB},
    {u"BACKSPACE", VK_BACK},
    {u"DELETE", VK_DELETE},
    {u"INSERT", VK_INSERT},
    {u"HOME", VK_HOME},
    {u"END", VK_END},
    {u"PGUP", VK_PRIOR},
    {u"PGDN", VK_NEXT},
    {u"UP", VK_UP},
    {u"DOWN", VK_DOWN},
    {u"LEFT", VK_LEFT},
    {u"RIGHT", VK_RIGHT},
    {u"F1", VK_F1},
    {u"F5", VK_F5},
}};

KeyCode keyCalled(std::u16string_view name) {
    for (const auto& [known, key] : namedKeys) {
        if (automation::equalIgnoringCase(known, name)) {
            return key;
        }
    }
    automation::raise(automation::RunTimeError::InvalidProcedureCall);
}

std::vector<KeyCode> parse(std::u16string_view keys) {
    std::vector<KeyCode> result;
    while (!keys.empty()) {
        const std::size_t end = keys.find(u'}');
        if (keys.front() != u'{' || end == std::u16string_view::npos) {
            automation::raise(automation::RunTimeError::InvalidProcedureCall);
        }
        result.push_back(keyCalled(keys.substr(1, end - 1)));
        keys.remove_prefix(end + 1);
    }
    return result;
}

void press(KeyCode key) {
    std::array<INPUT, 2> strokes{};
    for (INPUT& stroke : strokes) {
        stroke.type = INPUT_KEYBOARD;
        stroke.ki.wVk = key;
    }
    strokes[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(static_cast<UINT>(strokes.size()), strokes.data(), sizeof(INPUT));
}

/// The thread that has the keyboard, with its state of the keys shared for the length of a scope.
class ActiveThread {
public:
    ActiveThread() : window_(GetForegroundWindow()), thread_(GetWindowThreadProcessId(window_, nullptr)) {
        isShared_ = !isOwn() && AttachThreadInput(GetCurrentThreadId(), thread_, TRUE) != FALSE;
    }
    ~ActiveThread() {
        if (isShared_) {
            AttachThreadInput(GetCurrentThreadId(), thread_, FALSE);
        }
    }
    ActiveThread(const ActiveThread&) = delete;
    ActiveThread& operator=(const ActiveThread&) = delete;
    ActiveThread(ActiveThread&&) = delete;
    ActiveThread& operator=(ActiveThread&&) = delete;

    /// Presses a key and waits until the thread has taken it from its queue: then the key has changed its state.
    void take(KeyCode key) const {
        const bool before = isToggled(key);
        press(key);
        const auto end = Clock::now() + patience;
        while (isShared_ && isToggled(key) == before && Clock::now() < end) {
            std::this_thread::sleep_for(step);
        }
    }

    /// Waits until what was taken is processed: a thread answers messages only in between.
    void finish() const {
        if (isOwn()) {
            MSG message;
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
                TranslateMessage(&message);
                DispatchMessageW(&message);
            }
        } else {
            SendMessageTimeoutW(window_, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, static_cast<UINT>(patience.count()), nullptr);
        }
    }

private:
    [[nodiscard]] bool isOwn() const noexcept { return thread_ == GetCurrentThreadId(); }
    [[nodiscard]] static bool isToggled(KeyCode key) noexcept { return (GetKeyState(key) & 1) != 0; }

    HWND window_;
    DWORD thread_;
    bool isShared_;
};

} // namespace

void Win32Keyboard::send(std::u16string_view keys) {
    const std::vector<KeyCode> pressed = parse(keys);
    const ActiveThread active;
    for (const KeyCode key : pressed) {
        active.take(key);
    }
    active.finish();
}

} // namespace platform
