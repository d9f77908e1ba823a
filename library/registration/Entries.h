#pragma once

#include <string>
#include <vector>

namespace library {

/// One value in the registry, below the Classes key of the machine or of a user.
struct Entry {
    std::wstring key;
    std::wstring name; ///< empty for the key's own value
    std::wstring text;
    bool isShared = false; ///< the 32-bit and the 64-bit library have it in common
};

/// What registering the library at a path writes, keys before those below them.
[[nodiscard]] std::vector<Entry> entriesFor(const std::wstring& libraryPath);

/// The keys among them by which a class is found: missing where this bitness of the library is not registered.
[[nodiscard]] std::vector<std::wstring> serverKeys();

} // namespace library
