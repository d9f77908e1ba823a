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

/// What the system's thread that tells of interruptions and the one that reads have in common.
struct ConsoleState {
    std::atomic<bool> isInterrupted = false;
    Handle thread; ///< the one that reads
    Handle done;   ///< set when nothing is read any more
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
    if (state().isInterrupted.exchange(true)) {
        return FALSE;
    }
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
        state().done = Handle(CreateEventW(nullptr, TRUE, FALSE, nullptr));
        SetConsoleCtrlHandler(interrupt, TRUE);
    }
    ~ConsoleLines() override {
        SetConsoleCtrlHandler(interrupt, FALSE);
        SetEvent(state().done.get());
    }

    [[nodiscard]] std::optional<std::string> read(const std::string& prompt) override {
        std::cout << prompt << std::flush;
        std::array<wchar_t, 4096> typed{};
        DWORD length = 0;
        const bool isRead =
            !state().isInterrupted && ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), typed.data(),
                                                   static_cast<DWORD>(typed.size()), &length, nullptr) != FALSE;
        constexpr wchar_t endOfInput = L'\x1A';
        if (!isRead || state().isInterrupted || length == 0 || typed.front() == endOfInput) {
            std::cout << std::endl;
            return std::nullopt;
        }
        const std::wstring_view line(typed.data(), length);
        return automation::toUtf8(automation::com::fromWide(line.substr(0, line.find_last_not_of(L"\r\n") + 1)));
    }
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
