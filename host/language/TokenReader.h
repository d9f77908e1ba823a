#pragma once

#include "host/language/Lexer.h"

#include <string>
#include <vector>

namespace host::language {

/// The tokens of one line, taken from left to right.
class TokenReader {
public:
    explicit TokenReader(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

    [[nodiscard]] const Token& peek(std::size_t ahead = 0) const {
        return tokens_[std::min(position_ + ahead, tokens_.size() - 1)];
    }
    /// The token taken last, which there must be.
    [[nodiscard]] const Token& last() const { return tokens_[position_ - 1]; }
    /// True at the end of the line, and of a statement before another.
    [[nodiscard]] bool atEnd() const {
        return peek().kind == TokenKind::End || peek().isSymbol(u";") || peek().isSymbol(u":") ||
               peek().isWord(u"Else");
    }

    /// Takes a word, its case ignored. False where something else stands.
    bool takeWord(std::u16string_view word);
    /// The same for two words in a row.
    bool takeWords(std::u16string_view first, std::u16string_view second);
    /// The same, but only where the next token is of this kind: elsewhere the word may be a variable.
    bool takeWordBefore(TokenKind next, std::u16string_view word);
    void requireWord(std::u16string_view word);
    bool takeSymbol(std::u16string_view sign);
    void requireSymbol(std::u16string_view sign);

    /// The following raise SyntaxError where something else stands than is `expected`.
    std::u16string name(const std::string& expected);
    std::u16string text(const std::string& expected);
    /// A text that is not empty.
    std::u16string sentence(const std::string& expected);
    std::int32_t number(const std::string& expected);
    void end() const;

    /// Raises SyntaxError at the token that comes next.
    [[noreturn]] void fail(const std::string& expected) const;

protected:
    const Token& take() { return tokens_[position_++]; }

private:
    std::vector<Token> tokens_;
    std::size_t position_ = 0;
};

} // namespace host::language
