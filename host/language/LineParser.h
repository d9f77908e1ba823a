#pragma once

#include "host/language/ExpressionParser.h"

namespace host::language {

/// Reads the statements of a line that stand for themselves, and verdicts. Every function raises SyntaxError where the
/// line is wrong.
class LineParser : public ExpressionParser {
public:
    using ExpressionParser::ExpressionParser;

    /// One statement. An `expect error` whose line ends with the colon comes back without its statement.
    Statement statement();
    /// A verdict of this kind and what it means, up to the end of the line.
    Meaning meaning(Expectation::Kind kind);
    /// An expression on its own, up to the end of the line.
    Expression wholeExpression();
    /// A name that a variable may have.
    std::u16string variable();

private:
    using Node = decltype(Statement::node);

    Node check();
    Node expectation();
    Node expectedFailure();
    Node assignment(Expression target, bool isSet);
    Node callOrAssignment();
    Node call();
    Node declaration();
    Declared declared();
    automation::Value initialValue();
    std::vector<std::u16string> complement();
    ExpectedError expectedError();

    static void requireAssignable(const Expression& target);
};

} // namespace host::language
