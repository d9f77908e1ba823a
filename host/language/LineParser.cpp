#include "host/language/LineParser.h"

#include "automation/Text.h"
#include "host/language/Arrays.h"
#include "host/language/Constants.h"
#include "host/language/Functions.h"
#include "host/language/Keywords.h"
#include "host/language/Likeness.h"
#include "host/language/PowerPointNames.h"

namespace host::language {

Statement LineParser::statement() {
    Statement result{peek().place, {}, Call{}};
    requireOwn(peek());
    for (const std::u16string_view block : {u"question", u"course", u"scenario", u"before"}) {
        if (peek().isWord(block)) {
            fail("expected a statement");
        }
    }
    if (takeWord(u"check")) {
        result.node = check();
    } else if (takeWord(u"expect")) {
        result.node = takeWord(u"error") ? expectedFailure() : expectation();
    } else if (peek().isWord(u"Dim") || peek().isWord(u"ReDim")) {
        result.node = declaration();
    } else if (takeWord(u"Call")) {
        result.node = call();
    } else if (takeWord(u"Set")) {
        if (peek().kind != TokenKind::Name && !peek().isSymbol(u".")) {
            fail("expected a variable or a member");
        }
        result.node = assignment(chain(), true);
    } else {
        result.node = callOrAssignment();
    }
    return result;
}

LineParser::Node LineParser::check() {
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
        } while (takeSymbol(u","));
    }
    return lines;
}

Meaning LineParser::meaning(Expectation::Kind kind) {
    Meaning result;
    result.verdict.kind = kind;
    if (kind == Expectation::Kind::Error) {
        result.verdict.error = expectedError();
        requireSymbol(u":");
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

LineParser::Node LineParser::expectation() {
    ExpectValues node;
    do {
        Expression actual = term();
        requireSymbol(u"=");
        node.equations.push_back({std::move(actual), term()});
    } while (takeSymbol(u","));
    return node;
}

LineParser::Node LineParser::expectedFailure() {
    ExpectError node{expectedError(), {}};
    requireSymbol(u":");
    while (peek().kind != TokenKind::End) {
        if (peek().isWord(u"expect")) {
            fail("expected the statement that must raise the error");
        }
        node.statements.push_back(statement());
        if (!takeSymbol(u";")) {
            break;
        }
    }
    return node;
}

LineParser::Node LineParser::assignment(Expression target, bool isSet) {
    requireAssignable(target);
    requireSymbol(u"=");
    return Assignment{std::move(target), expression(), isSet};
}

void LineParser::requireAssignable(const Expression& target) {
    const auto& reference = std::get<Reference>(target.node);
    const bool isVariable = reference.object == nullptr && reference.arguments.empty();
    if (isVariable && (isReserved(reference.name) || isKeyword(reference.name) || findConstant(reference.name))) {
        throw SyntaxError(
            {target.place, "expected a variable, found the fixed name '" + automation::toUtf8(reference.name) + "'"});
    }
    const bool isElement = reference.object == nullptr && reference.parameters.empty() && !isReserved(reference.name) &&
                           !isFunction(reference.name) && !isMemberInPowerPoint(u"Application", reference.name);
    if (reference.name.empty() || (!isVariable && !isElement && reference.object == nullptr)) {
        throw SyntaxError({target.place, "expected a variable or a member before '='"});
    }
}

LineParser::Node LineParser::callOrAssignment() {
    if ((peek().kind != TokenKind::Name || isKeyword(peek().text)) && !peek().isSymbol(u".")) {
        fail("expected a statement");
    }
    const Token head = peek();
    Expression target = chain();
    if (peek().isSymbol(u"=")) {
        return assignment(std::move(target), false);
    }
    if (!atEnd()) {
        auto& reference = std::get<Reference>(target.node);
        if (!reference.arguments.empty() || reference.name.empty()) {
            fail("expected '=' or the end of the line");
        }
        if (reference.object == nullptr && !isMemberInPowerPoint(u"Application", reference.name) &&
            !isFunction(reference.name)) {
            throw SyntaxError({head.place, isForeignProcedure(reference.name)
                                               ? head.display() + ' ' + std::string(notOwn)
                                               : "expected a statement, found " + head.display() +
                                                     automation::toUtf8(suggestion(reference.name, verbs()))});
        }
        takeArguments(reference);
    }
    return Call{std::move(target)};
}

std::u16string LineParser::variable() {
    const Token& token = peek();
    std::u16string found = name("a variable");
    if (isReserved(found) || isKeyword(found) || findConstant(found)) {
        throw SyntaxError({token.place, "expected a variable, found the fixed name " + token.display()});
    }
    return found;
}

LineParser::Node LineParser::call() {
    if ((peek().kind != TokenKind::Name || isKeyword(peek().text)) && !peek().isSymbol(u".")) {
        fail("expected a member");
    }
    return Call{chain()};
}

LineParser::Node LineParser::declaration() {
    Declaration node;
    node.isAnew = take().isWord(u"ReDim");
    node.preserves = node.isAnew && takeWord(u"Preserve");
    do {
        const Position place = peek().place;
        node.variables.push_back(declared());
        if (node.isAnew && node.variables.back().dimensions.empty()) {
            throw SyntaxError({place, "expected an array with its bounds, as in ReDim a(1 To 3)"});
        }
    } while (takeSymbol(u","));
    return node;
}

Declared LineParser::declared() {
    Declared result{variable(), takeSymbol(u"("), {}, {}};
    if (result.isArray && !takeSymbol(u")")) {
        do {
            if (result.dimensions.size() == mostDimensions) {
                fail("expected at most " + std::to_string(mostDimensions) + " dimensions");
            }
            result.dimensions.push_back({std::nullopt, expression()});
            if (takeWord(u"To")) {
                Bounds& bounds = result.dimensions.back();
                bounds.first = std::exchange(bounds.last, expression());
            }
        } while (takeSymbol(u","));
        requireSymbol(u")");
    }
    if (takeWord(u"As")) {
        result.initial = initialValue();
    }
    return result;
}

automation::Value LineParser::initialValue() {
    const std::string expected = "a type of the macro language or a class of PowerPoint";
    const bool isQualified = (peek().isWord(u"PowerPoint") || peek().isWord(u"Office")) && peek(1).isSymbol(u".");
    if (isQualified) {
        take();
        take();
    }
    const Token& token = peek();
    const std::u16string type = name(expected);
    for (const std::u16string_view number :
         {u"Byte", u"Currency", u"Date", u"Double", u"Integer", u"Long", u"Single"}) {
        if (token.isWord(number)) {
            return std::int32_t(0);
        }
    }
    if (token.isWord(u"Boolean") || token.isWord(u"String")) {
        return token.isWord(u"String") ? automation::Value(u"") : automation::Value(false);
    }
    if (looksLikeConstant(type)) {
        return std::int32_t(0);
    }
    if (!isQualified && !token.isWord(u"Variant") && !token.isWord(u"Object") && !isClassOfPowerPoint(type)) {
        throw SyntaxError({token.place, "expected " + expected + ", found " + token.display() +
                                            automation::toUtf8(suggestion(type, classesOfPowerPoint()))});
    }
    return token.isWord(u"Variant") ? automation::Value() : automation::Value(nullptr);
}

Expression LineParser::wholeExpression() {
    Expression result = expression();
    end();
    return result;
}

} // namespace host::language
