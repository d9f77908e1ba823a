#include "host/win32/OwnTerminal.h"

#include "host/world/TemporaryFolder.h"

#include <windows.h>

#include <atomic>
#include <cstdio>

namespace host {

namespace {

std::atomic<UINT>& formerCodePage() {
    static std::atomic<UINT> page = 0;
    return page;
}

void giveCodePageBack() {
    if (const UINT page = formerCodePage().exchange(0); page != 0) {
        SetConsoleOutputCP(page);
    }
}

/// The system ends the program behind it.
BOOL WINAPI cleanUp(DWORD /*event*/) {
    TemporaryFolder::removeAll();
    giveCodePageBack();
    return FALSE;
}

} // namespace

OwnTerminal::OwnTerminal() {
    formerCodePage() = GetConsoleOutputCP();
    SetConsoleOutputCP(CP_UTF8);
    SetConsoleCtrlHandler(cleanUp, TRUE);
    // The console translates each write by itself; one byte of a letter alone says nothing.
    static_cast<void>(std::setvbuf(stdout, nullptr, _IOFBF, BUFSIZ));
}

OwnTerminal::~OwnTerminal() {
    static_cast<void>(std::fflush(stdout));
    giveCodePageBack();
    SetConsoleCtrlHandler(cleanUp, FALSE);
}

bool OwnTerminal::takesColours() {
    const HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    return GetConsoleMode(out, &mode) != FALSE &&
           SetConsoleMode(out, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != FALSE;
}

std::size_t OwnTerminal::columns(std::FILE* output) {
    const HANDLE handle = GetStdHandle(output == stderr ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE);
    CONSOLE_SCREEN_BUFFER_INFO info{};
    return GetConsoleScreenBufferInfo(handle, &info) == FALSE
               ? 0
               : static_cast<std::size_t>(info.srWindow.Right - info.srWindow.Left + 1);
}

} // namespace host
