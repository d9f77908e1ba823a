#include "library/LibraryFile.h"

#include "automation/com/ComError.h"
#include "automation/com/ComPtr.h"

namespace library {

namespace {

HMODULE thisLibrary() {
    HMODULE module = nullptr;
    constexpr DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&thisLibrary), &module) == 0) {
        automation::com::check(HRESULT_FROM_WIN32(GetLastError()));
    }
    return module;
}

} // namespace

std::wstring libraryPath() {
    constexpr DWORD longestPath = 32768;
    std::wstring path(longestPath, L'\0');
    const DWORD length = GetModuleFileNameW(thisLibrary(), path.data(), longestPath);
    if (length == 0) {
        automation::com::check(HRESULT_FROM_WIN32(GetLastError()));
    }
    path.resize(length);
    return path;
}

void describeInterface(REFIID interfaceId, ITypeInfo** info) {
    automation::com::ComPtr<ITypeLib> types;
    automation::com::check(LoadTypeLibEx(libraryPath().c_str(), REGKIND_NONE, types.receive()));
    automation::com::check(types->GetTypeInfoOfGuid(interfaceId, info));
}

} // namespace library
