#pragma once

#include <windows.h>

#include <vector>

namespace host {

/// Who may open a registry key, as a security descriptor. Raises the system's error.
[[nodiscard]] std::vector<BYTE> rightsOn(HKEY key);

/// Gives a key rights that it had; takes WRITE_DAC, which the owner of a key always has. Raises the system's error.
void setRights(HKEY key, std::vector<BYTE> rights);

/// Makes a key impossible to open, for its owner too. Raises the system's error.
void denyAll(HKEY key);

} // namespace host
