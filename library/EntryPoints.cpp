#include "automation/Object.h"
#include "automation/com/ComError.h"
#include "library/Apartment.h"
#include "library/ClassObject.h"
#include "library/LibraryFile.h"
#include "library/classes/Classes.h"
#include "library/registration/Registration.h"

#include <olectl.h>

// The functions that the system calls, by the names of K73053.def.

namespace {

using automation::com::guarded;
using library::Scope;

HRESULT registerFor(Scope scope) noexcept {
    return guarded([&] {
        library::registerLibrary(scope, library::libraryPath());
        return S_OK;
    });
}

HRESULT unregisterFor(Scope scope) noexcept {
    return guarded([&] {
        library::unregisterLibrary(scope);
        return S_OK;
    });
}

} // namespace

extern "C" {

BOOL WINAPI DllMain(HINSTANCE /*library*/, DWORD reason, void* /*reserved*/) {
    if (reason == DLL_THREAD_DETACH) {
        library::Apartment::forgetCurrent();
    }
    return TRUE;
}

HRESULT WINAPI DllGetClassObject(REFCLSID classId, REFIID wanted, void** result) {
    if (result == nullptr) {
        return E_POINTER;
    }
    *result = nullptr;
    if (!library::hasClass(classId)) {
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    return guarded([&] {
        library::handOutDualInterfaces();
        return automation::com::makeCom<library::ClassObject>(classId)->QueryInterface(wanted, result);
    });
}

HRESULT WINAPI DllCanUnloadNow() {
    const bool isIdle = library::ClassObject::locks() == 0 && automation::com::CountedAlive::count == 0 &&
                        automation::Object::alive() == 0;
    return isIdle ? S_OK : S_FALSE;
}

HRESULT WINAPI DllRegisterServer() {
    return registerFor(Scope::Machine);
}

HRESULT WINAPI DllUnregisterServer() {
    return unregisterFor(Scope::Machine);
}

/// Registers or unregisters; for the current user alone where the command line says "user".
HRESULT WINAPI DllInstall(BOOL install, PCWSTR commandLine) {
    const bool forUser = commandLine != nullptr && lstrcmpiW(commandLine, L"user") == 0;
    if (!forUser && commandLine != nullptr && *commandLine != L'\0') {
        return E_INVALIDARG;
    }
    const Scope scope = forUser ? Scope::User : Scope::Machine;
    return install != FALSE ? registerFor(scope) : unregisterFor(scope);
}

} // extern "C"
