#include "host/language/TokenReader.h"

#include "automation/Text.h"
#include "host/language/Keywords.h"

namespace host::language {

void TokenReader::fail(const std::string& expected) const {
    requireOwn(peek());
    throw SyntaxError({peek().place, expected + ", found " + peek().display()});
}

bool TokenReader::takeWord(std::u16string_view word) {
    const bool found = peek().isWord(word);
    position_ += found ? 1 : 0;
    return found;
}

bool TokenReader::takeWords(std::u16string_view first, std::u16string_view second) {
    const bool found = peek().isWord(first) && peek(1).isWord(second);
    position_ += found ? 2 : 0;
    return found;
}

bool TokenReader::takeWordBefore(TokenKind next, std::u16string_view word) {
    return !atEnd() && peek(1).kind == next && takeWord(word);
}

void TokenReader::requireWord(std::u16string_view word) {
    if (!takeWord(word)) {
        fail("expected '" + automation::toUtf8(word) + "'");
    }
}

bool TokenReader::takeSymbol(std::u16string_view sign) {
    const bool found = peek().isSymbol(sign);
    position_ += found ? 1 : 0;
    return found;
}

void TokenReader::requireSymbol(std::u16string_view sign) {
    if (!takeSymbol(sign)) {
        fail("expected '" + automation::toUtf8(sign) + "'");
    }
}

std::u16string TokenReader::name(const std::string& expected) {
    if (peek().kind != TokenKind::Name) {
        fail("expected " + expected);
    }
    return take().text;
}

std::u16string TokenReader::text(const std::string& expected) {
    if (peek().kind != TokenKind::Text) {
        fail("expected " + expected);
    }
    return take().value.to<std::u16string>();
}

std::u16string TokenReader::sentence(const std::string& expected) {
    if (peek().kind == TokenKind::Text && peek().value.to<std::u16string>().empty()) {
        fail("expected " + expected);
    }
    return text(expected);
}

std::int32_t TokenReader::number(const std::string& expected) {
    const bool negative = takeSymbol(u"-");
    if (peek().kind != TokenKind::Number || !peek().value.is<std::int32_t>()) {
        fail("expected " + expected);
    }
    const auto magnitude = take().value.to<std::int32_t>();
    return negative ? static_cast<std::int32_t>(-std::int64_t(magnitude)) : magnitude;
}

void TokenReader::end() const {
    if (peek().kind != TokenKind::End) {
        fail("expected the end of the line");
    }
}

} // namespace host::language
