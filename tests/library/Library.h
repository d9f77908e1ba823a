#pragma once

#include "automation/Unmoved.h"
#include "automation/com/ComPtr.h"

#include <string>

namespace tests {

/// The library under test, loaded from where it was built for the length of a scope.
class Library : automation::Unmoved {
public:
    Library();
    ~Library();

    /// Full path of its file.
    [[nodiscard]] static std::wstring path();
    /// Full path of a file that was built beside it.
    [[nodiscard]] static std::wstring pathBeside(const std::wstring& name);

    [[nodiscard]] HMODULE handle() const noexcept { return handle_; }

    /// A new object of a class, from its class object.
    template <typename Interface> [[nodiscard]] automation::com::ComPtr<Interface> create(REFCLSID classId) const {
        void* created = nullptr;
        classObject(classId)->CreateInstance(nullptr, __uuidof(Interface), &created);
        return automation::com::ComPtr<Interface>::adopt(static_cast<Interface*>(created));
    }
    [[nodiscard]] automation::com::ComPtr<IClassFactory> classObject(REFCLSID classId) const;
    [[nodiscard]] HRESULT getClassObject(REFCLSID classId, REFIID interfaceId, void** result) const;
    [[nodiscard]] bool canUnload() const;

    [[nodiscard]] HRESULT registerServer() const;
    [[nodiscard]] HRESULT unregisterServer() const;
    [[nodiscard]] HRESULT install(bool install, const wchar_t* commandLine) const;

private:
    template <typename Function> [[nodiscard]] Function* entry(const char* name) const;

    HMODULE handle_;
};

} // namespace tests
