#include "simulator/win32/Registration.h"

#include "automation/Error.h"
#include "automation/com/WideText.h"
#include "platform/win32/RegistryKey.h"
#include "simulator/win32/StandInIdentity.h"

#include <array>

namespace simulator::standin {

namespace {

using automation::com::fromWide;
using platform::RegistryKey;

const std::wstring classes = L"Software\\Classes\\";
const std::wstring title = L"PowerPoint stand-in";

REGSAM viewFlag(View view) noexcept {
    switch (view) {
    case View::Bits32: return KEY_WOW64_32KEY;
    case View::Bits64: return KEY_WOW64_64KEY;
    default: return 0;
    }
}

std::wstring textOf(const CLSID& id) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return text.data();
}

std::wstring classKey() {
    return classes + L"CLSID\\" + textOf(applicationClass);
}

std::wstring programPath() {
    std::wstring path(32767, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

/// The unnamed value of a key; empty where there is none.
std::wstring textAt(HKEY root, const std::wstring& key, REGSAM view = 0) {
    const auto opened = RegistryKey::open(root, key, KEY_QUERY_VALUE | view);
    return opened ? opened.text(L"") : std::wstring();
}

void write(const std::wstring& key, const std::wstring& text, REGSAM view) {
    RegistryKey::create(HKEY_LOCAL_MACHINE, key, KEY_SET_VALUE | view).setText(L"", text);
}

/// The class that a name of PowerPoint's stands for; empty where it is not known.
std::wstring classBehind(const wchar_t* name) {
    return textAt(HKEY_CLASSES_ROOT, std::wstring(name) + L"\\CLSID");
}

void refuseToReplace() {
    for (const wchar_t* const name : programmaticIds) {
        const std::wstring found = classBehind(name);
        if (!found.empty() && found != textOf(applicationClass)) {
            throw automation::Error(E_ACCESSDENIED, u"powerpnt-standin",
                                    u"A PowerPoint is registered on this machine: " + fromWide(name) + u" is " +
                                        fromWide(found) + u". It stays; the stand-in is not registered.");
        }
    }
}

} // namespace

void registerServer(View view) {
    refuseToReplace();
    const REGSAM flag = viewFlag(view);
    write(classKey(), title, flag);
    write(classKey() + L"\\LocalServer32", L'"' + programPath() + L'"', flag);
    write(classKey() + L"\\ProgID", programmaticIds[0], flag);
    write(classKey() + L"\\VersionIndependentProgID", programmaticIds[1], flag);
    for (const wchar_t* const name : programmaticIds) {
        write(classes + name, title, flag);
        write(classes + name + L"\\CLSID", textOf(applicationClass), flag);
    }
    write(classes + programmaticIds[1] + L"\\CurVer", programmaticIds[0], flag);
}

void unregisterServer(View view) {
    constexpr REGSAM views[] = {KEY_WOW64_32KEY, KEY_WOW64_64KEY};
    RegistryKey::removeTree(HKEY_LOCAL_MACHINE, classKey(), viewFlag(view));
    for (const REGSAM each : views) {
        if (!textAt(HKEY_LOCAL_MACHINE, classKey(), each).empty()) {
            return;
        }
    }
    for (const wchar_t* const name : programmaticIds) {
        for (const REGSAM each : views) { // Windows has the names once, Wine in each part
            if (textAt(HKEY_LOCAL_MACHINE, classes + name + L"\\CLSID", each) == textOf(applicationClass)) {
                RegistryKey::removeTree(HKEY_LOCAL_MACHINE, classes + name, each);
            }
        }
    }
}

bool isRegistered() noexcept {
    CLSID id{};
    return SUCCEEDED(CLSIDFromProgID(programmaticIds[0], &id)) && IsEqualCLSID(id, applicationClass);
}

} // namespace simulator::standin
