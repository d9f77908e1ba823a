#pragma once

#include <string_view>

namespace simulator {

/// True when a file name matches a pattern of a directory search, case ignored: `*` stands for any characters, `?` for
/// one, or for none at the end of the name or before a dot. As in a search by Windows, a dot followed by a wildcard
/// also matches the end of the name: "name.*" finds "name" too, and "*.*" finds every file. Short (8.3) names are not
/// looked at.
[[nodiscard]] bool matchesPattern(std::u16string_view name, std::u16string_view pattern) noexcept;

} // namespace simulator
