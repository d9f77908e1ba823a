#pragma once

#include "host/language/Ast.h"
#include "host/language/Lexer.h"

namespace host::language {

/// Reads the tokens of one line from left to right. Every function raises SyntaxError where the line is wrong.
class LineParser {
public:
    explicit LineParser(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

    [[nodiscard]] const Token& peek() const { return tokens_[position_]; }
    /// True at the end of the line, and of a statement before another.
    [[nodiscard]] bool atEnd() const { return peek().kind == TokenKind::End || peek().isSymbol(u';'); }
    /// Takes a word, its case ignored. False where something else stands.
    bool takeWord(std::u16string_view word);
    /// The same, but only where the next token is of this kind: elsewhere the word may be a variable.
    bool takeWordBefore(TokenKind next, std::u16string_view word);
    std::u16string text(const std::string& expected);
    /// A text that is not empty.
    std::u16string sentence(const std::string& expected);
    std::int32_t number(const std::string& expected);
    void end();
    /// For the statement behind `expect error`, which must not be another expectation.
    void requireNoExpectation() const;

    /// A whole statement, up to the end of the line. An `expect error` whose line ends with the colon comes back
    /// without its statement.
    Statement statement();
    /// A verdict of this kind and what it means, up to the end of the line.
    Meaning meaning(Expectation::Kind kind);
    /// An expression on its own, up to the end of the line.
    Expression wholeExpression();

private:
    [[noreturn]] void fail(const std::string& expected) const;
    const Token& take() { return tokens_[position_++]; }
    bool takeSymbol(char16_t sign);
    void requireSymbol(char16_t sign);

    Statement part();
    decltype(Statement::node) check();
    decltype(Statement::node) expectation();
    decltype(Statement::node) assignment(bool isSet);
    decltype(Statement::node) callOrAssignment();
    std::vector<std::u16string> complement();
    ExpectedError expectedError();

    Expression expression();
    Expression sum();
    Expression operand();
    Expression name();
    Expression chain();
    std::vector<Expression> parenthesized();
    std::vector<Expression> argumentList(bool (LineParser::*isLast)() const);
    [[nodiscard]] bool atClosing() const { return peek().isSymbol(u')'); }
    static void requireAssignable(const Expression& target);

    std::vector<Token> tokens_;
    std::size_t position_ = 0;
};

} // namespace host::language
