#pragma once

#include <windows.h>

#include <map>
#include <string>

namespace tests {

/// What can be seen of keys and values, by their names.
using RegistryContent = std::map<std::wstring, std::wstring>;

/// Of the Classes key of the machine or of a user: every key that a registration writes, and those above it, with the
/// number of keys and values that it has, and every value that a registration writes. `view` is KEY_WOW64_32KEY,
/// KEY_WOW64_64KEY, or 0 for that of this program.
[[nodiscard]] RegistryContent classesContent(HKEY root, REGSAM view);

/// The same for the machine and the user, in both views.
[[nodiscard]] RegistryContent allClassesContent();

} // namespace tests
