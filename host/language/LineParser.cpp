#include "host/language/LineParser.h"

#include "automation/Text.h"
#include "host/language/Constants.h"

namespace host::language {

namespace {

constexpr const char* expressionExpected = "expected a value: a text, a number, a constant or a name";

Expression literal(Position place, automation::Value value) {
    return {place, Literal{std::move(value)}};
}

Expression operation(Position place, char16_t sign, Expression left, std::optional<Expression> right) {
    Operation node{sign, {}};
    node.operands.push_back(std::move(left));
    if (right) {
        node.operands.push_back(std::move(*right));
    }
    return {place, std::move(node)};
}

} // namespace

void LineParser::fail(const std::string& expected) const {
    throw SyntaxError({peek().place, expected + ", found " + peek().display()});
}

bool LineParser::takeWord(std::u16string_view word) {
    const bool found = peek().isWord(word);
    position_ += found ? 1 : 0;
    return found;
}

bool LineParser::takeWordBefore(TokenKind next, std::u16string_view word) {
    return !atEnd() && tokens_[position_ + 1].kind == next && takeWord(word);
}

bool LineParser::takeSymbol(char16_t sign) {
    const bool found = peek().isSymbol(sign);
    position_ += found ? 1 : 0;
    return found;
}

void LineParser::requireSymbol(char16_t sign) {
    if (!takeSymbol(sign)) {
        fail("expected '" + automation::toUtf8({&sign, 1}) + "'");
    }
}

std::u16string LineParser::text(const std::string& expected) {
    if (peek().kind != TokenKind::Text) {
        fail("expected " + expected);
    }
    return take().value.to<std::u16string>();
}

std::u16string LineParser::sentence(const std::string& expected) {
    if (peek().kind == TokenKind::Text && peek().value.to<std::u16string>().empty()) {
        fail("expected " + expected);
    }
    return text(expected);
}

std::int32_t LineParser::number(const std::string& expected) {
    const bool negative = takeSymbol(u'-');
    if (peek().kind != TokenKind::Number || !peek().value.is<std::int32_t>()) {
        fail("expected " + expected);
    }
    const auto magnitude = take().value.to<std::int32_t>();
    return negative ? static_cast<std::int32_t>(-std::int64_t(magnitude)) : magnitude;
}

void LineParser::end() {
    if (peek().kind != TokenKind::End) {
        fail("expected the end of the line");
    }
}

Statement LineParser::statement() {
    Statement result = part();
    end();
    return result;
}

Statement LineParser::part() {
    Statement result{peek().place, {}, Call{}};
    for (const std::u16string_view block : {u"question", u"course", u"scenario", u"before"}) {
        if (peek().isWord(block)) {
            fail("expected a statement");
        }
    }
    if (takeWord(u"check")) {
        result.node = check();
    } else if (takeWord(u"expect")) {
        result.node = expectation();
    } else if (takeWord(u"Set")) {
        result.node = assignment(true);
    } else {
        result.node = callOrAssignment();
    }
    return result;
}

decltype(Statement::node) LineParser::check() {
    Expectation expected;
    if (peek().kind == TokenKind::Text) {
        expected.kind = Expectation::Kind::Letter;
        expected.letter = text("a letter");
    } else if (takeWord(u"remark")) {
        expected.kind = Expectation::Kind::Remark;
        expected.letter = text("the letter of the remark, in quotes");
    } else if (takeWord(u"general")) {
        expected.kind = Expectation::Kind::General;
        expected.letter = text("the general code, in quotes");
        return Check{std::move(expected)};
    } else if (takeWord(u"error")) {
        expected.kind = Expectation::Kind::Error;
        expected.error = expectedError();
        return Check{std::move(expected)};
    } else if (!takeWord(u"success")) {
        fail("expected a letter in quotes, success, remark, general or error");
    }
    expected.complement = complement();
    return Check{std::move(expected)};
}

std::vector<std::u16string> LineParser::complement() {
    std::vector<std::u16string> lines;
    if (takeWord(u"complement")) {
        do {
            lines.push_back(text("a complementary text, in quotes"));
        } while (takeSymbol(u','));
    }
    return lines;
}

Meaning LineParser::meaning(Expectation::Kind kind) {
    Meaning result;
    result.verdict.kind = kind;
    if (kind == Expectation::Kind::Error) {
        result.verdict.error = expectedError();
        requireSymbol(u':');
    } else {
        result.verdict.letter = sentence("the letter, in quotes");
    }
    result.text = sentence("what it means, in quotes");
    end();
    return result;
}

ExpectedError LineParser::expectedError() {
    ExpectedError error;
    error.number = number("the number of the error");
    while (peek().kind == TokenKind::Text) {
        error.parts.push_back(text("a part of the source"));
    }
    return error;
}

void LineParser::requireNoExpectation() const {
    if (peek().isWord(u"expect")) {
        fail("expected the statement that must raise the error");
    }
}

decltype(Statement::node) LineParser::expectation() {
    if (takeWord(u"error")) {
        ExpectError node{expectedError(), {}};
        requireSymbol(u':');
        while (peek().kind != TokenKind::End) {
            requireNoExpectation();
            node.statements.push_back(part());
            if (!takeSymbol(u';')) {
                break;
            }
        }
        return node;
    }
    ExpectValues node;
    do {
        Expression actual = expression();
        requireSymbol(u'=');
        node.equations.push_back({std::move(actual), expression()});
    } while (takeSymbol(u','));
    return node;
}

decltype(Statement::node) LineParser::assignment(bool isSet) {
    if (peek().kind != TokenKind::Name) {
        fail("expected a variable or a member");
    }
    Expression target = chain();
    requireAssignable(target);
    requireSymbol(u'=');
    return Assignment{std::move(target), expression(), isSet};
}

void LineParser::requireAssignable(const Expression& target) {
    const auto& reference = std::get<Reference>(target.node);
    const bool isVariable = reference.object == nullptr && reference.arguments.empty();
    if (isVariable && (isReserved(reference.name) || findConstant(reference.name))) {
        throw SyntaxError(
            {target.place, "expected a variable, found the fixed name '" + automation::toUtf8(reference.name) + "'"});
    }
    if (reference.name.empty() || (!isVariable && reference.object == nullptr)) {
        throw SyntaxError({target.place, "expected a variable or a member before '='"});
    }
}

decltype(Statement::node) LineParser::callOrAssignment() {
    if (peek().kind != TokenKind::Name) {
        fail("expected a statement");
    }
    Expression target = chain();
    if (peek().isSymbol(u'=')) {
        requireAssignable(target);
        take();
        return Assignment{std::move(target), expression(), false};
    }
    if (!atEnd()) {
        auto& reference = std::get<Reference>(target.node);
        if (!reference.arguments.empty() || reference.name.empty()) {
            fail("expected '=' or the end of the line");
        }
        reference.arguments = argumentList(&LineParser::atEnd);
    }
    return Call{std::move(target)};
}

Expression LineParser::wholeExpression() {
    Expression result = expression();
    end();
    return result;
}

Expression LineParser::expression() {
    Expression left = sum();
    while (peek().isSymbol(u'&')) {
        const Position place = take().place;
        left = operation(place, u'&', std::move(left), sum());
    }
    return left;
}

Expression LineParser::sum() {
    Expression left = operand();
    while (peek().isSymbol(u'+') || peek().isSymbol(u'-')) {
        const Token& sign = take();
        left = operation(sign.place, sign.text.front(), std::move(left), operand());
    }
    return left;
}

Expression LineParser::operand() {
    const Position place = peek().place;
    switch (peek().kind) {
    case TokenKind::Text:
    case TokenKind::Number: return literal(place, take().value);
    case TokenKind::Name: return name();
    default: break;
    }
    if (takeSymbol(u'-')) {
        return operation(place, u'-', operand(), std::nullopt);
    }
    if (takeSymbol(u'(')) {
        Expression inner = expression();
        requireSymbol(u')');
        return inner;
    }
    fail(expressionExpected);
}

Expression LineParser::name() {
    const Token& token = peek();
    if (auto constant = findConstant(token.text)) {
        return literal(take().place, std::move(*constant));
    }
    if (looksLikeConstant(token.text)) {
        throw SyntaxError({token.place, "expected a constant of PowerPoint or Office, found " + token.display()});
    }
    return chain();
}

Expression LineParser::chain() {
    const Token& head = take();
    Expression result{head.place, Reference{nullptr, head.text, parenthesized()}};
    while (peek().isSymbol(u'.') || peek().isSymbol(u'(')) {
        auto object = std::make_unique<Expression>(std::move(result));
        if (takeSymbol(u'.')) {
            if (peek().kind != TokenKind::Name) {
                fail("expected the name of a member");
            }
            const Token& member = take();
            result = {member.place, Reference{std::move(object), member.text, parenthesized()}};
        } else {
            const Position place = peek().place;
            result = {place, Reference{std::move(object), {}, parenthesized()}};
        }
    }
    return result;
}

std::vector<Expression> LineParser::parenthesized() {
    if (!takeSymbol(u'(') || takeSymbol(u')')) {
        return {};
    }
    std::vector<Expression> arguments = argumentList(&LineParser::atClosing);
    requireSymbol(u')');
    return arguments;
}

std::vector<Expression> LineParser::argumentList(bool (LineParser::*isLast)() const) {
    std::vector<Expression> arguments;
    do {
        const bool isOmitted = peek().isSymbol(u',') || (this->*isLast)();
        arguments.push_back(isOmitted ? Expression{peek().place, Omitted{}} : expression());
    } while (takeSymbol(u','));
    return arguments;
}

} // namespace host::language
