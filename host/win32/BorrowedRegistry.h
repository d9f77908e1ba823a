#pragma once

#include <windows.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// Changes to the real registry that are undone in the end, in reverse order.
class BorrowedRegistry {
public:
    BorrowedRegistry() = default;
    ~BorrowedRegistry();
    BorrowedRegistry(const BorrowedRegistry&) = delete;
    BorrowedRegistry& operator=(const BorrowedRegistry&) = delete;
    BorrowedRegistry(BorrowedRegistry&&) = delete;
    BorrowedRegistry& operator=(BorrowedRegistry&&) = delete;

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
    struct Data {
        DWORD type = REG_NONE;
        std::vector<BYTE> bytes;
    };
    struct Former {
        HKEY root;
        std::wstring key;
        std::wstring name;
        std::optional<Data> data; ///< nothing where the value was missing
        bool hadKey;
    };
    struct Denied {
        HKEY key; ///< opened before
        std::vector<BYTE> security;
    };

    void allow(const Denied& denied) const;
    static void restore(const Former& former);

    std::vector<Former> former_;
    std::map<std::wstring, Denied> denied_;
};

} // namespace host
