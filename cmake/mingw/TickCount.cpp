#include <windows.h>

// The thread library imports GetTickCount64 for the intervals that it waits, which Windows has from Vista on only. The
// pointer by which it would call it stands here: 32-bit programs run on Windows XP.

namespace {

ULONGLONG WINAPI milliseconds() {
    constexpr LONGLONG inASecond = 1000;
    LARGE_INTEGER frequency;
    LARGE_INTEGER now;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&now);
    const LONGLONG seconds = now.QuadPart / frequency.QuadPart;
    const LONGLONG rest = now.QuadPart % frequency.QuadPart;
    return static_cast<ULONGLONG>(seconds * inASecond + rest * inASecond / frequency.QuadPart);
}

} // namespace

extern "C" {
extern decltype(&milliseconds) const imported asm("__imp__GetTickCount64@0");
decltype(&milliseconds) const imported = &milliseconds;
}
