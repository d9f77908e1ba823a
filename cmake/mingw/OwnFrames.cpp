#include <windows.h>

// For 32 bits, GCC's start-up code asks whether the process has GCC's shared runtime loaded, and if so registers the
// frames of this file there. But what is thrown in this file is searched for by the runtime that is linked into it,
// which then knows no frame and ends the process. To the code linked into this file there is no shared runtime: the
// pointer by which it would ask the system stands here.

namespace {

HMODULE WINAPI findModule(LPCSTR name) {
    if (name != nullptr && lstrcmpiA(name, "libgcc_s_dw2-1.dll") == 0) {
        return nullptr;
    }
    void* const found = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "GetModuleHandleA"));
    return reinterpret_cast<decltype(&GetModuleHandleA)>(found)(name);
}

} // namespace

extern "C" {
extern decltype(&GetModuleHandleA) const imported asm("__imp__GetModuleHandleA@4");
decltype(&GetModuleHandleA) const imported = &findModule;
}
