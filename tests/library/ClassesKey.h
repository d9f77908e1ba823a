#pragma once

#include <windows.h>

#include <map>
#include <string>

namespace tests {

/// Values by key and name.
using RegistryContent = std::map<std::wstring, std::wstring>;

/// What the Classes key of the machine or of a user holds that a registration could touch: its keys, those one level
/// below CLSID, Interface and TypeLib, and everything within what the library registers. `view` is KEY_WOW64_32KEY or
/// KEY_WOW64_64KEY.
[[nodiscard]] RegistryContent classesContent(HKEY root, REGSAM view);

/// The same for the machine and the user, in both views.
[[nodiscard]] RegistryContent allClassesContent();

} // namespace tests
