#include "host/language/Lexer.h"

#include "automation/Text.h"

#include <charconv>

namespace host::language {

namespace {

using automation::toUtf8;

bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

bool isHexDigit(char16_t c) {
    return isDigit(c) || (c >= u'A' && c <= u'F') || (c >= u'a' && c <= u'f');
}

/// Accented letters belong to names as well.
bool startsName(char16_t c) {
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_' || c >= 0x00C0;
}

class Lexer {
public:
    Lexer(std::u16string_view line, std::size_t number) : line_(line), number_(number) {}

    std::vector<Token> run() {
        std::vector<Token> tokens;
        Position end = here();
        for (skipBlanks(); !atEnd(); skipBlanks()) {
            if (tokens.size() == mostTokens) {
                throw SyntaxError({here(), "expected a line of at most " + std::to_string(mostTokens) + " words"});
            }
            const std::size_t begin = position_;
            tokens.push_back(next());
            tokens.back().begin = begin;
            tokens.back().end = position_;
            end = here();
        }
        tokens.push_back({TokenKind::End, end, {}, {}, end.column - 1, end.column - 1});
        return tokens;
    }

private:
    /// What is nested in a line stays so shallow that it can be read and evaluated.
    static constexpr std::size_t mostTokens = 1000;

    [[nodiscard]] char16_t peek(std::size_t ahead = 0) const {
        return position_ + ahead < line_.size() ? line_[position_ + ahead] : u'\0';
    }
    [[nodiscard]] bool atEnd() const { return position_ >= line_.size() || peek() == u'#' || peek() == u'\''; }
    [[nodiscard]] Position here() const { return {number_, position_ + 1}; }

    void skipBlanks() {
        while (peek() == u' ' || peek() == u'\t' || peek() == u'\r' || peek() == 0x00A0 || peek() == 0xFEFF) {
            ++position_;
        }
    }

    template <typename Test> std::u16string_view take(const Test& belongs) {
        const std::size_t start = position_;
        while (position_ < line_.size() && belongs(line_[position_])) {
            ++position_;
        }
        return line_.substr(start, position_ - start);
    }

    Token next() {
        const Position place = here();
        const char16_t c = peek();
        if (startsName(c)) {
            std::u16string name(take([](char16_t x) { return startsName(x) || isDigit(x); }));
            position_ += peek() == u'$' ? 1 : 0; // says that a function gives a text
            return {TokenKind::Name, place, std::move(name), {}};
        }
        if (isDigit(c) || (c == u'.' && isDigit(peek(1)))) {
            return {TokenKind::Number, place, {}, number()};
        }
        if (c == u'&' && (peek(1) == u'H' || peek(1) == u'h') && isHexDigit(peek(2))) {
            return {TokenKind::Number, place, {}, hexadecimal()};
        }
        if (c == u'"') {
            return {TokenKind::Text, place, {}, text()};
        }
        return {TokenKind::Symbol, place, symbol(), {}};
    }

    std::u16string symbol() {
        for (const std::u16string_view sign : {u":=", u"<>", u"<=", u">="}) {
            if (line_.substr(position_).starts_with(sign)) {
                position_ += sign.size();
                return std::u16string(sign);
            }
        }
        const char16_t c = peek();
        if (std::u16string_view(u".,()=&+-*/\\^<>:;").find(c) == std::u16string_view::npos) {
            throw SyntaxError({here(), "expected a statement, found '" + toUtf8({&c, 1}) + "'"});
        }
        ++position_;
        return std::u16string(1, c);
    }

    /// A quote inside a text is doubled.
    std::u16string text() {
        const Position opening = here();
        std::u16string result;
        for (++position_; position_ < line_.size(); ++position_) {
            if (line_[position_] == u'"' && peek(1) != u'"') {
                ++position_;
                return result;
            }
            position_ += line_[position_] == u'"' ? 1 : 0;
            result += line_[position_];
        }
        throw SyntaxError({opening, "expected a closing quote for this text"});
    }

    /// Takes the sign of a type behind a number.
    bool takeSuffix(std::u16string_view signs) {
        const bool found = peek() != u'\0' && signs.find(peek()) != std::u16string_view::npos;
        position_ += found ? 1 : 0;
        return found;
    }

    automation::Value number() {
        const Position place = here();
        std::string digits = toUtf8(take(isDigit));
        bool isReal = false;
        if (peek() == u'.' && isDigit(peek(1))) {
            isReal = true;
            ++position_;
            digits += "." + toUtf8(take(isDigit));
        }
        const std::size_t sign = peek(1) == u'+' || peek(1) == u'-' ? 1 : 0;
        if ((peek() == u'E' || peek() == u'e') && isDigit(peek(1 + sign))) {
            isReal = true;
            digits += peek(1) == u'-' ? "e-" : "e";
            position_ += 1 + sign;
            digits += toUtf8(take(isDigit));
        }
        const bool isSingle = takeSuffix(u"!");
        if (isSingle || takeSuffix(u"#@") || isReal) {
            return isSingle ? automation::Value(real<float>(digits, place))
                            : automation::Value(real<double>(digits, place));
        }
        takeSuffix(u"&%");
        return whole<std::int32_t>(digits, 10, place);
    }

    /// Up to four digits are a number of 16 bits, unless it is said to be one of 32.
    automation::Value hexadecimal() {
        const Position place = here();
        position_ += 2;
        const std::string digits = toUtf8(take(isHexDigit));
        const auto bits = whole<std::uint32_t>(digits, 16, place);
        const bool isShort = !takeSuffix(u"&") && digits.size() <= 4;
        return isShort ? std::int32_t(static_cast<std::int16_t>(bits)) : static_cast<std::int32_t>(bits);
    }

    template <typename Real> static Real real(const std::string& digits, Position place) {
        Real number = 0;
        if (std::from_chars(digits.data(), digits.data() + digits.size(), number).ec != std::errc()) {
            throw SyntaxError(
                {place, "expected a number that fits into " + std::to_string(8 * sizeof(Real)) + " bits"});
        }
        return number;
    }

    template <typename Integer> static Integer whole(const std::string& digits, int base, Position place) {
        Integer integer = 0;
        if (std::from_chars(digits.data(), digits.data() + digits.size(), integer, base).ec != std::errc()) {
            throw SyntaxError({place, "expected a number that fits into 32 bits"});
        }
        return integer;
    }

    std::u16string_view line_;
    std::size_t number_;
    std::size_t position_ = 0;
};

} // namespace

bool Token::isWord(std::u16string_view word) const {
    return kind == TokenKind::Name && automation::equalIgnoringCase(text, word);
}

std::string Token::display() const {
    switch (kind) {
    case TokenKind::Text:
    case TokenKind::Number: return toUtf8(value.display());
    case TokenKind::Name:
    case TokenKind::Symbol: return "'" + toUtf8(text) + "'";
    case TokenKind::End: break;
    }
    return "the end of the line";
}

std::vector<Token> tokenize(std::u16string_view line, std::size_t lineNumber) {
    return Lexer(line, lineNumber).run();
}

} // namespace host::language
