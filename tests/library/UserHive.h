#pragma once

#include "automation/Unmoved.h"

#include <windows.h>

#include <string>
#include <vector>

namespace tests {

/// For the length of a scope, this process sees a registry of the current user that is empty but for what is put there.
/// The real one is not touched.
class UserHive : automation::Unmoved {
public:
    UserHive();
    ~UserHive();

    /// Data of a value, byte by byte.
    struct Stored {
        DWORD type = REG_NONE;
        std::vector<BYTE> data;

        friend bool operator==(const Stored&, const Stored&) = default;
    };

    /// Writes a text with its terminating NUL, creating the key; `text` may hold NULs.
    static void put(const std::wstring& key, const std::wstring& name, const std::wstring& text);
    static void putKey(const std::wstring& key);
    static void removeKey(const std::wstring& key);
    [[nodiscard]] static Stored stored(const std::wstring& key, const std::wstring& name);
    /// What a text is stored as, with so many characters beyond it.
    [[nodiscard]] static Stored text(const std::wstring& text, std::size_t more = 0);

private:
    HKEY hive_ = nullptr;
};

} // namespace tests
