#include "host/win32/OwnLines.h"

#include "automation/Text.h"
#include "automation/com/WideText.h"
#include "host/try/PlainLines.h"
#include "host/win32/Handle.h"

#include <array>
#include <atomic>
#include <iostream>

namespace host {

namespace {

/// How long the system is kept waiting where it closes the console.
constexpr DWORD untilDone = 20'000;

constexpr DWORD none = 0xFFFFFFFF;

/// What the system's thread that tells of interruptions and the one that reads have in common.
struct ConsoleState {
    std::atomic<DWORD> event = none; ///< the interruption that nobody has seen yet
    Handle thread;                   ///< the one that reads
    Handle heard;                    ///< set when there is an interruption
    Handle done;                     ///< set when nothing is read any more
};

ConsoleState& state() {
    static ConsoleState one;
    return one;
}

/// Looked up, since Windows XP does not have it: there the reading ends with the line that is being typed.
void cancelReading() noexcept {
    void* const found =
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "CancelSynchronousIo"));
    if (found != nullptr) {
        reinterpret_cast<decltype(&CancelSynchronousIo)>(found)(state().thread.get());
    }
}

BOOL WINAPI interrupt(DWORD event) {
    if (state().event.exchange(event) != none) {
        return FALSE;
    }
    SetEvent(state().heard.get());
    cancelReading();
    if (event >= CTRL_CLOSE_EVENT) {
        WaitForSingleObject(state().done.get(), untilDone); // the program ends when this returns
    }
    return TRUE;
}

/// There is one at a time. Texts of the program are UTF-8.
class ConsoleLines final : public LineReader {
public:
    ConsoleLines() {
        state().thread = Handle(OpenThread(THREAD_TERMINATE, FALSE, GetCurrentThreadId()));
        state().heard = Handle(CreateEventW(nullptr, FALSE, FALSE, nullptr));
        state().done = Handle(CreateEventW(nullptr, TRUE, FALSE, nullptr));
        SetConsoleCtrlHandler(interrupt, TRUE);
    }
    ~ConsoleLines() override {
        SetConsoleCtrlHandler(interrupt, FALSE);
        SetEvent(state().done.get());
    }

    [[nodiscard]] bool isTyped() const override { return true; }

    [[nodiscard]] std::optional<std::string> read(const std::string& prompt) override {
        for (bool isFirst = true;; isFirst = false) {
            std::cout << prompt << std::flush;
            if (std::optional<std::string> line = readOnce()) {
                return line;
            }
            std::cout << std::endl;
            // What was typed before Ctrl-C is dropped; whether there was something the console does not say.
            const bool mayGoOn = isDropped() && isFirst;
            if (!mayGoOn) {
                return std::nullopt;
            }
            std::cout << "(Ctrl-C once more leaves)" << std::endl;
        }
    }

private:
    std::optional<std::string> readOnce() {
        std::array<wchar_t, 4096> typed{};
        DWORD length = 0;
        const bool isRead =
            state().event == none && ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), typed.data(),
                                                  static_cast<DWORD>(typed.size()), &length, nullptr) != FALSE;
        constexpr wchar_t endOfInput = L'\x1A';
        if (!isRead || state().event != none || length == 0 || typed.front() == endOfInput) {
            isAborted_ = length == 0;
            return std::nullopt;
        }
        const std::wstring_view line(typed.data(), length);
        return automation::toUtf8(automation::com::fromWide(line.substr(0, line.find_last_not_of(L"\r\n") + 1)));
    }

    /// True after Ctrl-C, which may come again.
    [[nodiscard]] bool isDropped() const {
        constexpr DWORD soon = 1000;
        if (isAborted_) {
            WaitForSingleObject(state().heard.get(), soon);
        }
        DWORD dropped = CTRL_C_EVENT;
        return state().event.compare_exchange_strong(dropped, none);
    }

    bool isAborted_ = false; ///< the console gave nothing, as it does just before the system tells of Ctrl-C
};

} // namespace

std::unique_ptr<LineReader> makeOwnLines() {
    DWORD mode = 0;
    if (GetConsoleMode(GetStdHandle(STD_INPUT_HANDLE), &mode) != FALSE) {
        return std::make_unique<ConsoleLines>();
    }
    return std::make_unique<PlainLines>(std::cin);
}

} // namespace host
