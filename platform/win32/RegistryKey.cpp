#include "platform/win32/RegistryKey.h"

#include "automation/com/ComError.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

/// Removes a key without keys below it. RegDeleteKeyExW is looked up, since Windows XP of 32 bits has neither the
/// function nor another part of the registry.
LSTATUS deleteKey(HKEY root, const std::wstring& path, REGSAM view) {
    void* const found = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"advapi32.dll"), "RegDeleteKeyExW"));
    return found != nullptr ? reinterpret_cast<decltype(&RegDeleteKeyExW)>(found)(root, path.c_str(), view, 0)
                            : RegDeleteKeyW(root, path.c_str());
}

} // namespace

RegistryKey::~RegistryKey() {
    if (key_ != nullptr) {
        RegCloseKey(key_);
    }
}

RegistryKey RegistryKey::create(HKEY root, const std::wstring& path, REGSAM access) {
    HKEY key = nullptr;
    checkRegistry(RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, access, nullptr, &key, nullptr));
    return RegistryKey(key);
}

RegistryKey RegistryKey::open(HKEY root, const std::wstring& path, REGSAM access) {
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExW(root, path.c_str(), 0, access, &key);
    if (status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND) {
        return {};
    }
    checkRegistry(status);
    return RegistryKey(key);
}

void RegistryKey::removeBare(HKEY root, std::wstring path, const std::wstring& staying, REGSAM view) {
    while (path.size() > staying.size()) {
        if (const auto opened = open(root, path, KEY_QUERY_VALUE | view); !opened || !opened.isBare()) {
            return;
        }
        checkRegistry(deleteKey(root, path, view));
        const std::size_t end = path.rfind(L'\\');
        path.resize(end == std::wstring::npos ? 0 : end);
    }
}

void RegistryKey::removeTree(HKEY root, const std::wstring& path, REGSAM view) {
    if (const auto key = open(root, path, KEY_ENUMERATE_SUB_KEYS | view)) {
        constexpr DWORD longestName = 256; // with its NUL
        std::array<wchar_t, longestName> name{};
        for (DWORD size = longestName;
             RegEnumKeyExW(key.get(), 0, name.data(), &size, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
             size = longestName) {
            removeTree(root, path + L'\\' + name.data(), view);
        }
        checkRegistry(deleteKey(root, path, view));
    }
}

std::optional<RegistryValue> RegistryKey::value(const std::wstring& name) const {
    RegistryValue value;
    DWORD size = 0;
    const LSTATUS status = RegQueryValueExW(key_, name.c_str(), nullptr, &value.type, nullptr, &size);
    if (status == ERROR_FILE_NOT_FOUND) {
        return std::nullopt;
    }
    checkRegistry(status);
    value.bytes.resize(size);
    checkRegistry(RegQueryValueExW(key_, name.c_str(), nullptr, &value.type, value.bytes.data(), &size));
    value.bytes.resize(size);
    return value;
}

std::wstring RegistryKey::text(const std::wstring& name) const {
    const std::optional<RegistryValue> found = value(name);
    if (!found || found->type != REG_SZ) {
        return {};
    }
    std::wstring text((found->bytes.size() + 1) / sizeof(wchar_t), L'\0');
    std::ranges::copy(found->bytes, reinterpret_cast<BYTE*>(text.data()));
    text.resize(std::min(text.find(L'\0'), text.size()));
    return text;
}

void RegistryKey::setValue(const std::wstring& name, const RegistryValue& value) const {
    checkRegistry(
        RegSetValueExW(key_, name.c_str(), 0, value.type, value.bytes.data(), static_cast<DWORD>(value.bytes.size())));
}

void RegistryKey::setText(const std::wstring& name, const std::wstring& text) const {
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    checkRegistry(RegSetValueExW(key_, name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()), bytes));
}

void RegistryKey::deleteValue(const std::wstring& name) const {
    const LSTATUS status = RegDeleteValueW(key_, name.c_str());
    checkRegistry(status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status);
}

bool RegistryKey::isBare() const {
    DWORD keys = 0;
    DWORD values = 0;
    checkRegistry(RegQueryInfoKeyW(key_, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                                   nullptr, nullptr));
    return keys == 0 && values == 0;
}

void checkRegistry(LSTATUS status) {
    automation::com::check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
}

} // namespace platform
