#include <windows.h>

#include <array>
#include <atomic>

// The thread library takes a thread-local slot of the process and never gives it back, so that a library which comes
// and goes uses up all that there are. The pointer by which it asks for one stands here, and what it got is given back
// at the end.

namespace {

constinit std::array<DWORD, 8> slots{};
constinit std::atomic<std::size_t> used = 0;

DWORD WINAPI allocate() {
    void* const found = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "TlsAlloc"));
    const DWORD slot = reinterpret_cast<decltype(&TlsAlloc)>(found)();
    if (slot != TLS_OUT_OF_INDEXES) {
        slots.at(used++) = slot;
    }
    return slot;
}

/// Runs after everything else that the library does at its end.
[[gnu::destructor(101)]] void giveBack() {
    while (used > 0) {
        TlsFree(slots.at(--used));
    }
}

} // namespace

extern "C" {
#ifdef _WIN64
extern decltype(&allocate) const imported asm("__imp_TlsAlloc");
#else
extern decltype(&allocate) const imported asm("__imp__TlsAlloc@0");
#endif
decltype(&allocate) const imported = &allocate;
}
