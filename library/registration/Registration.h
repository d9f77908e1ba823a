#pragma once

#include <string>

namespace library {

/// Whom a registration serves.
enum class Scope {
    Machine, ///< all users; takes an administrator's rights
    User,    ///< the current user alone
};

/// Writes the library's entries. Raises the error of the system, and then leaves what was there before.
void registerLibrary(Scope scope, const std::wstring& libraryPath);

/// Removes the library's entries, and keys that this leaves bare. What the 32-bit and the 64-bit library have in common
/// stays as long as the other one is registered. Raises the error of the system.
void unregisterLibrary(Scope scope);

} // namespace library
