#include "tests/library/ClassesKey.h"

#include "library/registration/Entries.h"
#include "platform/win32/RegistryKey.h"

namespace tests {

using platform::RegistryKey;

namespace {

std::wstring counts(const RegistryKey& key) {
    DWORD keys = 0;
    DWORD values = 0;
    const LSTATUS status = RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                                            nullptr, nullptr, nullptr, nullptr);
    return status == ERROR_SUCCESS ? std::to_wstring(keys) + L" keys, " + std::to_wstring(values) + L" values"
                                   : L"missing";
}

std::wstring valueAt(const RegistryKey& key, const std::wstring& name) {
    const auto value = key ? key.value(name) : std::nullopt;
    return value ? std::to_wstring(value->type) + L": " + std::wstring(value->bytes.begin(), value->bytes.end())
                 : L"(missing)";
}

} // namespace

RegistryContent classesContent(HKEY root, REGSAM view) {
    RegistryContent content;
    for (const library::Entry& entry : library::entriesFor(L"")) {
        const auto open = [&](const std::wstring& path) { return RegistryKey::open(root, path, KEY_READ | view); };
        std::wstring path = L"Software\\Classes\\" + entry.key;
        content[path + L'|' + entry.name] = valueAt(open(path), entry.name);
        for (; path != L"Software"; path.resize(path.rfind(L'\\'))) {
            content[path] = counts(open(path));
        }
    }
    return content;
}

RegistryContent allClassesContent() {
    RegistryContent all;
    for (HKEY const root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
        for (const REGSAM view : {REGSAM{KEY_WOW64_32KEY}, REGSAM{KEY_WOW64_64KEY}}) {
            const std::wstring whose = (root == HKEY_CURRENT_USER ? L"user " : L"machine ") + std::to_wstring(view);
            for (auto& [name, seen] : classesContent(root, view)) {
                all[whose + L' ' + name] = seen;
            }
        }
    }
    return all;
}

} // namespace tests
