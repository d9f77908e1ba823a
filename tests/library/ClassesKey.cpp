#include "tests/library/ClassesKey.h"

#include "automation/Unmoved.h"
#include "library/registration/Entries.h"

namespace tests {

namespace {

/// A key that is open, or none.
class Key : automation::Unmoved {
public:
    Key(HKEY root, const std::wstring& path, REGSAM view) {
        RegOpenKeyExW(root, path.c_str(), 0, KEY_READ | view, &key_);
    }
    ~Key() { RegCloseKey(key_); }

    [[nodiscard]] std::wstring counts() const {
        DWORD keys = 0;
        DWORD values = 0;
        const LSTATUS status = RegQueryInfoKeyW(key_, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                                                nullptr, nullptr, nullptr, nullptr);
        return status == ERROR_SUCCESS ? std::to_wstring(keys) + L" keys, " + std::to_wstring(values) + L" values"
                                       : L"missing";
    }
    [[nodiscard]] std::wstring text(const std::wstring& name) const {
        wchar_t data[1024];
        DWORD size = sizeof(data);
        const LSTATUS status =
            RegGetValueW(key_, nullptr, name.c_str(), RRF_RT_REG_SZ, nullptr, static_cast<void*>(data), &size);
        return status == ERROR_SUCCESS ? L"'" + std::wstring(data) + L"'" : L"missing";
    }

private:
    HKEY key_ = nullptr;
};

} // namespace

RegistryContent classesContent(HKEY root, REGSAM view) {
    RegistryContent content;
    for (const library::Entry& entry : library::entriesFor(L"")) {
        std::wstring path = L"Software\\Classes\\" + entry.key;
        content[path + L'|' + entry.name] = Key(root, path, view).text(entry.name);
        for (; path != L"Software"; path.resize(path.rfind(L'\\'))) {
            content[path] = Key(root, path, view).counts();
        }
    }
    return content;
}

RegistryContent allClassesContent() {
    RegistryContent all;
    for (HKEY const root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
        for (const REGSAM view : {KEY_WOW64_32KEY, KEY_WOW64_64KEY}) {
            const std::wstring whose = (root == HKEY_CURRENT_USER ? L"user " : L"machine ") + std::to_wstring(view);
            for (auto& [name, seen] : classesContent(root, view)) {
                all[whose + L' ' + name] = seen;
            }
        }
    }
    return all;
}

} // namespace tests
