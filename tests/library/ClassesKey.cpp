#include "tests/library/ClassesKey.h"

#include "library/registration/Entries.h"

#include <functional>
#include <set>

namespace tests {

namespace {

const std::wstring classes = L"Software\\Classes";

/// Walks a key: every key below it is seen, and entered where the visitor says so.
class Walk {
public:
    using Enters = std::function<bool(const std::wstring& path)>;

    Walk(HKEY root, REGSAM view, RegistryContent& content, Enters enters)
        : root_(root), view_(view), content_(content), enters_(std::move(enters)) {}

    void key(const std::wstring& path) {
        HKEY opened = nullptr;
        if (RegOpenKeyExW(root_, (classes + path).c_str(), 0, KEY_READ | view_, &opened) != ERROR_SUCCESS) {
            return;
        }
        values(opened, path);
        wchar_t name[256];
        for (DWORD i = 0;; ++i) {
            DWORD length = 256;
            if (RegEnumKeyExW(opened, i, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) {
                break;
            }
            const std::wstring below = path + L'\\' + name;
            content_[below] = L"";
            if (enters_(below)) {
                key(below);
            }
        }
        RegCloseKey(opened);
    }

private:
    void values(HKEY opened, const std::wstring& path) {
        wchar_t name[256];
        wchar_t data[1024];
        for (DWORD i = 0;; ++i) {
            DWORD length = 256;
            DWORD size = sizeof(data);
            if (RegEnumValueW(opened, i, name, &length, nullptr, nullptr, reinterpret_cast<BYTE*>(data), &size) !=
                ERROR_SUCCESS) {
                break;
            }
            content_[path + L"|" + name] = std::wstring(data, size / sizeof(wchar_t));
        }
    }

    HKEY root_;
    REGSAM view_;
    RegistryContent& content_;
    Enters enters_;
};

/// The keys that a registration writes, and those above them.
std::set<std::wstring> touchedKeys() {
    std::set<std::wstring> keys;
    for (const library::Entry& entry : library::entriesFor(L"")) {
        for (std::wstring key = L'\\' + entry.key; !key.empty(); key.resize(key.rfind(L'\\'))) {
            keys.insert(key);
        }
    }
    return keys;
}

} // namespace

RegistryContent classesContent(HKEY root, REGSAM view) {
    RegistryContent content;
    const auto touched = touchedKeys();
    Walk(root, view, content, [&](const std::wstring& path) { return touched.contains(path); }).key(L"");
    return content;
}

RegistryContent allClassesContent() {
    RegistryContent all;
    for (HKEY const root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
        for (const REGSAM view : {KEY_WOW64_32KEY, KEY_WOW64_64KEY}) {
            const std::wstring mark = (root == HKEY_CURRENT_USER ? L"user " : L"machine ") + std::to_wstring(view);
            for (auto& [key, text] : classesContent(root, view)) {
                all[mark + key] = text;
            }
        }
    }
    return all;
}

} // namespace tests
