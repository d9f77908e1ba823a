#include <K73053.h>

#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <string>

// shared-runtime LIBRARY: a host that shares the compiler's runtime, as programs of mingw-w64 usually do, and loads and
// frees the library again and again. Each time the library raises an error inside.

namespace {

constexpr int times = 1200;          ///< more than a process has thread-local slots
constexpr std::uintptr_t spare = 20; ///< handles that the system may keep, whatever is loaded
constexpr auto subscriptOutOfRange = static_cast<HRESULT>(0x800A0009);

/// The number that a new handle has, which grows with those that stay open.
std::uintptr_t nextHandle() {
    const HANDLE fresh = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    CloseHandle(fresh);
    return reinterpret_cast<std::uintptr_t>(fresh) / 4;
}

HRESULT readItemOfNone(HMODULE library) {
    IClassFactory* factory = nullptr;
    TableauTexte* texts = nullptr;
    BSTR text = nullptr;
    auto* const entry = reinterpret_cast<void*>(GetProcAddress(library, "DllGetClassObject"));
    reinterpret_cast<decltype(&DllGetClassObject)>(entry)(CLSID_ComplementInfo, IID_IClassFactory,
                                                          reinterpret_cast<void**>(&factory));
    factory->CreateInstance(nullptr, IID_TableauTexte, reinterpret_cast<void**>(&texts));
    const HRESULT status = texts->item(1, &text);
    SetErrorInfo(0, nullptr);
    texts->Release();
    factory->Release();
    return status;
}

void run(const char* path) {
    const std::uintptr_t before = nextHandle();
    for (int done = 0; done < times; ++done) {
        HMODULE library = LoadLibraryA(path);
        if (library == nullptr) {
            throw std::runtime_error("it does not load, after " + std::to_string(done) + " times");
        }
        if (readItemOfNone(library) != subscriptOutOfRange) {
            throw std::runtime_error("no error was read");
        }
        FreeLibrary(library);
        if (GetModuleHandleA(path) != nullptr) {
            throw std::runtime_error("it stays loaded");
        }
    }
    if (const std::uintptr_t after = nextHandle(); after > before + spare) {
        throw std::runtime_error(std::to_string(after - before) + " handles stay open");
    }
}

} // namespace

int main(int /*count*/, char** arguments) {
    try {
        if (GetModuleHandleA("libstdc++-6.dll") == nullptr) {
            throw std::logic_error("this host shares no runtime");
        }
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        run(arguments[1]);
        std::printf("%d times\n", times);
        return 0;
    } catch (const std::exception& error) {
        std::puts(error.what());
        return 1;
    }
}
