#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace trials {

/// Runs a script in the Windows Script Host, in the one of this program's own width, and returns what it prints. Raises
/// CannotCreateObject (429) where it cannot be started or does not end well.
[[nodiscard]] std::string runScript(const std::filesystem::path& script, const std::vector<std::u16string>& arguments);

} // namespace trials
