#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace platform {

/// A value as the registry has it.
struct RegistryValue {
    DWORD type = REG_NONE;
    std::vector<BYTE> bytes;
};

/// An open registry key, or none.
class RegistryKey {
public:
    RegistryKey() noexcept = default;
    ~RegistryKey();
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    RegistryKey(RegistryKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
    RegistryKey& operator=(RegistryKey&& other) noexcept {
        std::swap(key_, other.key_);
        return *this;
    }

    /// Creates the key and those above it, or opens it. Raises the error of the system.
    [[nodiscard]] static RegistryKey create(HKEY root, const std::wstring& path, REGSAM access = KEY_SET_VALUE);
    /// None where it is missing. Raises any other error of the system, such as missing rights.
    [[nodiscard]] static RegistryKey open(HKEY root, const std::wstring& path, REGSAM access);

    /// Removes a key that is bare, and those above it that this leaves bare, up to one that stays. `view` is a part of
    /// the registry, or 0 for that of this program. Raises the error of the system.
    static void removeBare(HKEY root, std::wstring path, const std::wstring& staying, REGSAM view = 0);

    /// Removes a key with all that stands below it; one that is missing is as good as removed. Raises the error of the
    /// system.
    static void removeTree(HKEY root, const std::wstring& path, REGSAM view = 0);

    [[nodiscard]] HKEY get() const noexcept { return key_; }
    [[nodiscard]] explicit operator bool() const noexcept { return key_ != nullptr; }

    /// A value of any type; nothing where it is missing. Raises any other error of the system.
    [[nodiscard]] std::optional<RegistryValue> value(const std::wstring& name) const;
    /// A text without its terminating NUL; empty where it is missing, or no text.
    [[nodiscard]] std::wstring text(const std::wstring& name) const;
    /// Writes a text; raises the error of the system.
    void setText(const std::wstring& name, const std::wstring& text) const;
    /// Writes a value; raises the error of the system.
    void setValue(const std::wstring& name, const RegistryValue& value) const;
    /// Removes a value; one that is missing is as good as removed. Raises any other error of the system.
    void deleteValue(const std::wstring& name) const;
    /// True for a key with neither values nor keys below it. Raises the error of the system.
    [[nodiscard]] bool isBare() const;

private:
    explicit RegistryKey(HKEY key) noexcept : key_(key) {}

    HKEY key_ = nullptr;
};

/// Raises the error of the system that a registry call gave, if it is one.
void checkRegistry(LSTATUS status);

} // namespace platform
