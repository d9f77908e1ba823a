#pragma once

#include "host/language/Ast.h"
#include "host/language/TokenReader.h"

namespace host::language {

/// Reads expressions. Every function raises SyntaxError where the line is wrong.
class ExpressionParser : public TokenReader {
public:
    using TokenReader::TokenReader;

    Expression expression();
    /// An expression in which `=` does not compare.
    Expression term();
    /// A name with what stands behind its dots and in its parentheses: a Reference.
    Expression chain();
    /// The arguments of a call without parentheses.
    void takeArguments(Reference& reference) { takeArguments(reference, {}); }

private:
    Expression binary(std::size_t level);
    Expression operand();
    Expression named();
    Expression takeMember(Expression object);
    void takeParenthesized(Reference& reference);
    /// Up to a sign, or to the end of the statement where none is given.
    void takeArguments(Reference& reference, std::u16string_view closing);
};

} // namespace host::language
