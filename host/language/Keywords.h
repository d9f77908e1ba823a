#pragma once

#include "host/language/Lexer.h"

#include <string_view>

/// The words of the macro language.
namespace host::language {

/// True for a word that cannot name a variable.
[[nodiscard]] bool isKeyword(std::u16string_view name);

/// The words that begin a line of a scenario file.
[[nodiscard]] const std::vector<std::u16string_view>& verbs();

/// How a message goes on behind a part of the macro language that scenarios do not have.
constexpr std::string_view notOwn =
    "is a part of the macro language that scenarios do not have: they have If, Select Case, For, Do, While and With";

/// True for what the macro language's own library has: InputBox, Split. They may name variables.
[[nodiscard]] bool isForeignProcedure(std::u16string_view name);

/// Raises SyntaxError for a word or a sign of the macro language that scenarios do not have.
void requireOwn(const Token& token);

} // namespace host::language
