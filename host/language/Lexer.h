#pragma once

#include "automation/Value.h"
#include "host/language/Position.h"

#include <string>

namespace host::language {

enum class TokenKind : std::uint8_t { Name, Text, Number, Symbol, End };

/// One word, literal or sign of a line.
struct Token {
    TokenKind kind = TokenKind::End;
    Position place;
    std::u16string text;     ///< of a name or a sign, as it is written
    automation::Value value; ///< of a literal
    std::size_t begin = 0;   ///< where it begins in the text of its line
    std::size_t end = 0;     ///< right behind it

    [[nodiscard]] bool isSymbol(std::u16string_view sign) const { return kind == TokenKind::Symbol && text == sign; }
    /// True for a name, its case ignored.
    [[nodiscard]] bool isWord(std::u16string_view word) const;
    /// The token as a message mentions it.
    [[nodiscard]] std::string display() const;
};

/// The tokens of one line and, right behind them, their end. A comment starts at `'`, or at a `#` that does not end a
/// number. Raises SyntaxError.
[[nodiscard]] std::vector<Token> tokenize(std::u16string_view line, std::size_t lineNumber);

} // namespace host::language
