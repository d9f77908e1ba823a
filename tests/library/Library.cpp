#include "tests/library/Library.h"

#include <stdexcept>

namespace tests {

using automation::com::ComPtr;

Library::Library() : handle_(LoadLibraryW(path().c_str())) {
    if (handle_ == nullptr) {
        throw std::runtime_error("K73053.dll does not load");
    }
}

Library::~Library() {
    FreeLibrary(handle_);
}

std::wstring Library::path() {
    return pathBeside(L"K73053.dll");
}

std::wstring Library::pathBeside(const std::wstring& name) {
    std::wstring program(MAX_PATH, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
    const std::wstring relative = program.substr(0, program.rfind(L'\\')) + L"\\..\\..\\library\\" + name;
    std::wstring full(MAX_PATH, L'\0');
    full.resize(GetFullPathNameW(relative.c_str(), MAX_PATH, full.data(), nullptr));
    return full;
}

template <typename Function> Function* Library::entry(const char* name) const {
    const FARPROC found = GetProcAddress(handle_, name);
    if (found == nullptr) {
        throw std::runtime_error(std::string("K73053.dll does not export ") + name);
    }
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

HRESULT Library::getClassObject(REFCLSID classId, REFIID interfaceId, void** result) const {
    return entry<HRESULT WINAPI(REFCLSID, REFIID, void**)>("DllGetClassObject")(classId, interfaceId, result);
}

ComPtr<IClassFactory> Library::classObject(REFCLSID classId) const {
    void* result = nullptr;
    if (FAILED(getClassObject(classId, IID_IClassFactory, &result))) {
        throw std::runtime_error("no class object");
    }
    return ComPtr<IClassFactory>::adopt(static_cast<IClassFactory*>(result));
}

bool Library::canUnload() const {
    return entry<HRESULT WINAPI()>("DllCanUnloadNow")() == S_OK;
}

HRESULT Library::registerServer() const {
    return entry<HRESULT WINAPI()>("DllRegisterServer")();
}

HRESULT Library::unregisterServer() const {
    return entry<HRESULT WINAPI()>("DllUnregisterServer")();
}

HRESULT Library::install(bool install, const wchar_t* commandLine) const {
    return entry<HRESULT WINAPI(BOOL, PCWSTR)>("DllInstall")(install ? TRUE : FALSE, commandLine);
}

} // namespace tests
