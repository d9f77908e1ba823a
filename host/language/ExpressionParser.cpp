#include "host/language/ExpressionParser.h"

#include "automation/Text.h"
#include "host/language/Constants.h"
#include "host/language/Keywords.h"
#include "host/language/Likeness.h"

#include <array>
#include <utility>

namespace host::language {

namespace {

constexpr const char* expressionExpected = "expected a value: a text, a number, a constant or a name";

/// The operators between two operands, from those that bind least; `Not`, before one, stands between two levels.
struct Infix {
    std::u16string_view sign;
    Operator meaning;
    std::size_t level;
};
constexpr std::size_t levelOfNot = 2;
constexpr std::size_t levelOfTerms = 4;
constexpr std::size_t levelOfOperands = 9;
constexpr auto infixes = std::to_array<Infix>({
    {u"Or", Operator::Or, 0},
    {u"And", Operator::And, 1},
    {u"=", Operator::Equal, 3},
    {u"<>", Operator::NotEqual, 3},
    {u"<", Operator::Less, 3},
    {u"<=", Operator::LessOrEqual, 3},
    {u">", Operator::Greater, 3},
    {u">=", Operator::GreaterOrEqual, 3},
    {u"Is", Operator::Is, 3},
    {u"&", Operator::Join, 4},
    {u"+", Operator::Add, 5},
    {u"-", Operator::Subtract, 5},
    {u"Mod", Operator::Modulo, 6},
    {u"\\", Operator::DivideWhole, 7},
    {u"*", Operator::Multiply, 8},
    {u"/", Operator::Divide, 8},
});

const Infix* infixAt(const Token& token, std::size_t level) {
    for (const Infix& infix : infixes) {
        if (infix.level == level && (token.isSymbol(infix.sign) || token.isWord(infix.sign))) {
            return &infix;
        }
    }
    return nullptr;
}

Expression literal(Position place, automation::Value value) {
    return {place, Literal{std::move(value)}};
}

Expression operation(Position place, Operator sign, Expression first) {
    Operation node{sign, {}};
    node.operands.push_back(std::move(first));
    return {place, std::move(node)};
}

} // namespace

Expression ExpressionParser::expression() {
    return binary(0);
}

Expression ExpressionParser::term() {
    return binary(levelOfTerms);
}

Expression ExpressionParser::binary(std::size_t level) {
    const Position place = peek().place;
    if (level == levelOfNot) {
        return takeWord(u"Not") ? operation(place, Operator::Not, binary(level)) : binary(level + 1);
    }
    if (level == levelOfOperands) {
        return takeSymbol(u"-") ? operation(place, Operator::Negate, binary(level)) : operand();
    }
    Expression left = binary(level + 1);
    while (const Infix* const infix = infixAt(peek(), level)) {
        left = operation(take().place, infix->meaning, std::move(left));
        std::get<Operation>(left.node).operands.push_back(binary(level + 1));
    }
    return left;
}

Expression ExpressionParser::operand() {
    const Position place = peek().place;
    switch (peek().kind) {
    case TokenKind::Text:
    case TokenKind::Number: return literal(place, take().value);
    case TokenKind::Name: return named();
    default: break;
    }
    if (peek().isSymbol(u".")) {
        return chain();
    }
    if (takeSymbol(u"(")) {
        Expression inner = expression();
        requireSymbol(u")");
        return inner;
    }
    fail(expressionExpected);
}

Expression ExpressionParser::named() {
    const Token& token = peek();
    requireOwn(token);
    if (isKeyword(token.text)) {
        fail(expressionExpected);
    }
    if (auto constant = findConstant(token.text)) {
        return literal(take().place, std::move(*constant));
    }
    if (looksLikeConstant(token.text)) {
        const std::vector<std::u16string> constants = constantNames();
        const std::u16string alike = suggestion(token.text, {constants.begin(), constants.end()});
        throw SyntaxError(
            {token.place, "expected a constant of PowerPoint or Office that is known here, found " + token.display() +
                              (alike.empty() ? "; its number may stand in its place" : automation::toUtf8(alike))});
    }
    return chain();
}

Expression ExpressionParser::chain() {
    Expression result{peek().place, Subject{}};
    if (!peek().isSymbol(u".")) {
        result.node = Reference{nullptr, take().text, {}, {}};
        takeParenthesized(std::get<Reference>(result.node));
    }
    while (peek().isSymbol(u".") || peek().isSymbol(u"(")) {
        if (takeSymbol(u".")) {
            result = takeMember(std::move(result));
        } else {
            const Position place = peek().place;
            result = {place, Reference{std::make_unique<Expression>(std::move(result)), {}, {}, {}}};
            takeParenthesized(std::get<Reference>(result.node));
        }
    }
    return result;
}

Expression ExpressionParser::takeMember(Expression object) {
    const Position place = peek().place;
    std::u16string member = name("the name of a member");
    Expression result{place, Reference{std::make_unique<Expression>(std::move(object)), std::move(member), {}, {}}};
    takeParenthesized(std::get<Reference>(result.node));
    return result;
}

void ExpressionParser::takeParenthesized(Reference& reference) {
    if (takeSymbol(u"(") && !takeSymbol(u")")) {
        takeArguments(reference, u")");
        requireSymbol(u")");
    }
}

void ExpressionParser::takeArguments(Reference& reference, std::u16string_view closing) {
    do {
        if (peek().kind == TokenKind::Name && peek(1).isSymbol(u":=")) {
            reference.parameters.push_back(take().text);
            take();
        } else if (!reference.parameters.empty()) {
            fail("expected the name of an argument and ':=', as behind every named one");
        }
        const bool isOmitted = peek().isSymbol(u",") || (closing.empty() ? atEnd() : peek().isSymbol(closing));
        reference.arguments.push_back(isOmitted ? Expression{peek().place, Omitted{}} : expression());
    } while (takeSymbol(u","));
}

} // namespace host::language
