#include "platform/win32/Win32Registry.h"

#include "automation/com/WideText.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

using automation::com::fromWide;
using automation::com::WideText;
using Key = Registry::Key;

HKEY handleOf(Key key) noexcept {
    return reinterpret_cast<HKEY>(static_cast<std::uintptr_t>(key));
}

Key keyOf(HKEY handle) noexcept {
    return static_cast<Key>(reinterpret_cast<std::uintptr_t>(handle));
}

DWORD bytesOf(std::size_t characters) noexcept {
    return static_cast<DWORD>(characters * sizeof(wchar_t));
}

} // namespace

Registry::Status Win32Registry::create(std::u16string_view path, Key& key) {
    HKEY handle = nullptr;
    const Status status = RegCreateKeyExW(HKEY_CURRENT_USER, WideText(path).get(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                          MAXIMUM_ALLOWED, nullptr, &handle, nullptr);
    key = keyOf(handle);
    return status;
}

Registry::Status Win32Registry::open(std::u16string_view path, std::uint32_t access, Key& key) {
    HKEY handle = nullptr;
    const Status status = RegOpenKeyExW(HKEY_CURRENT_USER, WideText(path).get(), 0, access, &handle);
    key = keyOf(handle);
    return status;
}

Registry::Status Win32Registry::enumerate(Key key, std::uint32_t index, std::size_t bufferLength,
                                          std::u16string& name) {
    std::vector<wchar_t> buffer(bufferLength);
    auto length = static_cast<DWORD>(buffer.size());
    const Status status =
        RegEnumValueW(handleOf(key), index, buffer.data(), &length, nullptr, nullptr, nullptr, nullptr);
    if (status == success) {
        name = fromWide({buffer.data(), length});
    }
    return status;
}

Registry::Status Win32Registry::query(Key key, std::u16string_view name, std::size_t& length, std::u16string& data) {
    std::vector<wchar_t> buffer(std::max<std::size_t>(length, 1));
    DWORD type = REG_NONE;
    DWORD bytes = bytesOf(length);
    const Status status = RegQueryValueExW(handleOf(key), WideText(name).get(), nullptr, &type,
                                           reinterpret_cast<BYTE*>(buffer.data()), &bytes);
    if (status != success && status != moreData) {
        return status;
    }
    if (type != REG_SZ && type != REG_EXPAND_SZ) {
        return unsupportedType;
    }
    // Data that end in half a character are read without it.
    length = status == success ? bytes / sizeof(wchar_t) : (bytes + 1) / sizeof(wchar_t);
    if (status == success) {
        data = fromWide({buffer.data(), length});
    }
    return status;
}

Registry::Status Win32Registry::set(Key key, std::u16string_view name, std::u16string_view data, std::size_t length) {
    const std::size_t stored = std::min(length, data.size() + 1);
    std::wstring text(data.begin(), data.end());
    text.resize(std::max(stored, data.size()), L'\0');
    return RegSetValueExW(handleOf(key), WideText(name).get(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.data()),
                          bytesOf(stored));
}

void Win32Registry::close(Key key) {
    RegCloseKey(handleOf(key));
}

} // namespace platform
