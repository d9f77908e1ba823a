#pragma once

#include "host/win32/Journal.h"
#include "platform/win32/RegistryKey.h"

#include <map>

namespace host {

/// Changes to the real registry that are undone when the journal gives everything back.
class BorrowedRegistry {
public:
    /// `journal` must outlive this object.
    explicit BorrowedRegistry(Journal& journal) noexcept : journal_(journal) {}

    /// A string value of the current user's, without its terminating NUL, whether the key is denied or not; empty where
    /// it is missing.
    [[nodiscard]] std::wstring text(const std::wstring& key, const std::wstring& name) const;
    /// Writes a string value, and the key where it is missing. Raises the system's error.
    void setText(HKEY root, const std::wstring& key, const std::wstring& name, const std::wstring& text);
    void remove(HKEY root, const std::wstring& key, const std::wstring& name);
    /// Notes a value that others may change.
    void remember(HKEY root, const std::wstring& key, const std::wstring& name);
    /// Makes a key of the current user's impossible to open, or possible again.
    void deny(const std::wstring& key, bool denied);

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
