#include <windows.h>

#include <array>
#include <atomic>

// What the thread library takes of the process it does not give back where it is linked into a library that comes and
// goes: thread-local slots, and with the record of a thread its event and a handle of the thread. Both are given back
// at the end.

namespace {

constexpr std::size_t most = TLS_MINIMUM_AVAILABLE + 1024; ///< slots that a process has
constinit std::array<std::atomic<bool>, most> isTaken{};

/// The pointer by which the thread library asks for a slot stands here.
DWORD WINAPI allocate() {
    void* const found = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "TlsAlloc"));
    const DWORD slot = reinterpret_cast<decltype(&TlsAlloc)>(found)();
    if (slot < most) {
        isTaken[slot] = true;
    }
    return slot;
}

} // namespace

extern "C" {
#ifdef _WIN64
extern decltype(&allocate) const importedTlsAlloc asm("__imp_TlsAlloc");
extern PIMAGE_TLS_CALLBACK const whenThreadsEnd asm("__xl_f");
#else
extern decltype(&allocate) const importedTlsAlloc asm("__imp__TlsAlloc@0");
extern PIMAGE_TLS_CALLBACK const whenThreadsEnd asm("___xl_f");
#endif
decltype(&allocate) const importedTlsAlloc = &allocate;
}

namespace {

/// Runs after everything else that the library does at its end, on the thread that unloads it. Of others that still run
/// the records stay.
[[gnu::destructor(101)]] void giveBack() {
    whenThreadsEnd(nullptr, DLL_THREAD_DETACH, nullptr);
    for (DWORD slot = 0; slot < most; ++slot) {
        if (isTaken[slot]) {
            TlsFree(slot);
        }
    }
}

} // namespace
