#pragma once

#include "host/win32/Journal.h"
#include "host/world/Registry.h"
#include "platform/win32/RegistryKey.h"

#include <map>

namespace host {

/// Changes to the real registry that are undone when the journal gives everything back.
class BorrowedRegistry final : public Registry {
public:
    /// `journal` must outlive this object.
    explicit BorrowedRegistry(Journal& journal) noexcept : journal_(journal) {}

    /// Without its terminating NUL, whether the key is denied or not.
    [[nodiscard]] std::u16string text(std::u16string_view key, std::u16string_view name) override;
    /// Writes the key, too, where it is missing. Raises the system's error.
    void setText(std::u16string_view key, std::u16string_view name, std::u16string_view text) override;
    void remove(std::u16string_view key, std::u16string_view name) override;
    void deny(std::u16string_view path, bool denied) override;
    void setMeasurementSystem(std::u16string_view system) override;
    /// Writes a string value anywhere in the registry, and its key where it is missing. Raises the system's error.
    void change(HKEY root, const std::wstring& key, const std::wstring& name, const std::wstring& text);

private:
    /// A denied key, opened before.
    struct Denied {
        platform::RegistryKey key;
        Loan rights;
    };

    Journal& journal_;
    std::map<std::wstring, Denied> denied_;
};

} // namespace host
