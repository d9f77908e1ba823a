#include "host/language/Keywords.h"

#include "automation/Text.h"

#include <algorithm>

namespace host::language {

namespace {

using automation::equalIgnoringCase;
using Words = std::vector<std::u16string_view>;

const Words own{u"And", u"As",   u"Call", u"Case", u"Dim", u"Do",    u"Each", u"Else",  u"ElseIf", u"End",   u"For",
                u"If",  u"In",   u"Is",   u"Loop", u"Mod", u"New",   u"Next", u"Not",   u"Or",     u"ReDim", u"Select",
                u"Set", u"Step", u"Sub",  u"Then", u"To",  u"Until", u"Wend", u"While", u"With"};

/// What the macro language has beside them.
const Words foreign{u"AddressOf", u"Attribute", u"Const",  u"Declare", u"Enum",     u"Eqv",    u"Erase",
                    u"Exit",      u"Function",  u"GoSub",  u"GoTo",    u"Imp",      u"Let",    u"Like",
                    u"Null",      u"On",        u"Option", u"Private", u"Property", u"Public", u"Resume",
                    u"Static",    u"Stop",      u"Type",   u"TypeOf",  u"Xor"};

/// What its library has beside Functions.
const Words foreignProcedures{u"CreateObject", u"Date",  u"Dir",      u"Err",       u"Fix",     u"Format",
                              u"IsEmpty",      u"LCase", u"Now",      u"Rnd",       u"Round",   u"InputBox",
                              u"Shell",        u"Split", u"Sqr",      u"Str",       u"Timer",   u"TypeName",
                              u"UCase",        u"Val",   u"SendKeys", u"GetObject", u"DoEvents"};

const Words foreignSigns{u"^"};

bool isAmong(const Words& words, std::u16string_view name) {
    return std::any_of(words.begin(), words.end(),
                       [name](std::u16string_view word) { return equalIgnoringCase(word, name); });
}

} // namespace

bool isKeyword(std::u16string_view name) {
    return isAmong(own, name);
}

bool isForeignProcedure(std::u16string_view name) {
    return isAmong(foreignProcedures, name);
}

const std::vector<std::u16string_view>& verbs() {
    static const Words all{u"before",     u"check",  u"class",  u"contested", u"course",   u"delivered",
                           u"documented", u"error",  u"expect", u"letter",    u"question", u"remark",
                           u"scenario",   u"task",   u"Call",   u"Case",      u"Dim",      u"Do",
                           u"ElseIf",     u"End",    u"For",    u"If",        u"Loop",     u"Next",
                           u"ReDim",      u"Select", u"Set",    u"Wend",      u"While",    u"With"};
    return all;
}

void requireOwn(const Token& token) {
    const bool isForeign = (token.kind == TokenKind::Name && isAmong(foreign, token.text)) ||
                           (token.kind == TokenKind::Symbol && isAmong(foreignSigns, token.text));
    if (isForeign) {
        throw SyntaxError({token.place, token.display() + ' ' + std::string(notOwn)});
    }
}

} // namespace host::language
