#include "tests/library/UserHive.h"

#include "platform/win32/RegistryKey.h"

#include <gtest/gtest.h>

namespace tests {

namespace {

constexpr const wchar_t* place = L"Software\\K73053 tests";

} // namespace

UserHive::UserHive() {
    RegDeleteTreeW(HKEY_CURRENT_USER, place);
    EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, place, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &hive_, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, hive_), ERROR_SUCCESS);
}

UserHive::~UserHive() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(hive_);
    EXPECT_EQ(RegDeleteTreeW(HKEY_CURRENT_USER, place), ERROR_SUCCESS);
}

void UserHive::put(const std::wstring& key, const std::wstring& name, const std::wstring& text) {
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), REG_SZ, text.c_str(), size), ERROR_SUCCESS);
}

void UserHive::putKey(const std::wstring& key) {
    static_cast<void>(platform::RegistryKey::create(HKEY_CURRENT_USER, key));
}

void UserHive::removeKey(const std::wstring& key) {
    EXPECT_EQ(RegDeleteTreeW(HKEY_CURRENT_USER, key.c_str()), ERROR_SUCCESS);
}

UserHive::Stored UserHive::stored(const std::wstring& key, const std::wstring& name) {
    Stored result;
    HKEY opened = nullptr;
    RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_QUERY_VALUE, &opened);
    DWORD size = 0;
    RegQueryValueExW(opened, name.c_str(), nullptr, &result.type, nullptr, &size);
    result.data.resize(size);
    RegQueryValueExW(opened, name.c_str(), nullptr, nullptr, result.data.data(), &size);
    RegCloseKey(opened);
    return result;
}

UserHive::Stored UserHive::text(const std::wstring& text, std::size_t more) {
    const auto* const bytes = reinterpret_cast<const BYTE*>(text.c_str());
    return {REG_SZ, {bytes, bytes + (text.size() + more) * sizeof(wchar_t)}};
}

} // namespace tests
