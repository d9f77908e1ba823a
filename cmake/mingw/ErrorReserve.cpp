#include <windows.h>

#include <cxxabi.h>

#include <cstddef>

// Where memory runs out, the language's runtime takes the memory of an error from a reserve behind a mutex, for which
// the thread library allocates memory when it is first locked. That would be too late: the error of it would ask for
// the next, until the stack of the host's thread is used up. So the reserve is used once while there is memory.

extern "C" {
#ifdef _WIN64
extern void* importedMalloc asm("__imp_malloc");
#else
extern void* importedMalloc asm("__imp__malloc");
#endif
}

namespace {

void import(void* function) {
    DWORD before = 0;
    VirtualProtect(&importedMalloc, sizeof(importedMalloc), PAGE_READWRITE, &before);
    importedMalloc = function;
    VirtualProtect(&importedMalloc, sizeof(importedMalloc), before, &before);
}

void*& was() {
    static void* function = nullptr;
    return function;
}

/// Fails once.
void* refuse(std::size_t /*size*/) {
    import(was());
    return nullptr;
}

/// Runs after the constructors of the runtime, which is linked behind.
[[gnu::constructor]] void useReserve() {
    was() = importedMalloc;
    import(reinterpret_cast<void*>(&refuse));
    abi::__cxa_free_exception(abi::__cxa_allocate_exception(1));
}

} // namespace
