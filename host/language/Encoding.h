#pragma once

#include <string>
#include <string_view>

namespace host::language {

/// The text of a file in UTF-8, or in UTF-16 where it begins with the mark of it; the mark is no part of the text.
/// Raises SyntaxError where the first wrong byte stands.
[[nodiscard]] std::u16string textOf(std::string_view bytes);

} // namespace host::language
