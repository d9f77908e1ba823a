#include "host/language/StatementReader.h"

#include "automation/Text.h"
#include "host/language/Words.h"

namespace host::language {

namespace {

using automation::toUtf8;

constexpr std::u16string_view endWith = u"End With";
constexpr std::u16string_view endIf = u"End If";
constexpr std::u16string_view endFor = u"Next";
constexpr std::u16string_view endDo = u"Loop";
constexpr std::u16string_view endWhile = u"Wend";
constexpr std::u16string_view endSelect = u"End Select";
constexpr std::size_t mostTokens = 1000;

/// What stands from a token to the one taken last.
std::u16string sourceFrom(const Token& first, const LineParser& words, const LogicalLine& line) {
    return line.text.substr(first.begin, words.last().end - first.begin);
}

Statement simple(LineParser& words, const LogicalLine& line) {
    const Token first = words.peek();
    Statement statement = words.statement();
    statement.text = sourceFrom(first, words, line);
    return statement;
}

void requireNoCheck(const Statement& statement) {
    if (std::holds_alternative<Check>(statement.node)) {
        throw SyntaxError(
            {statement.place, "expected 'check' outside of With, If and loops: it is one moment of a scenario"});
    }
}

/// The statements behind `Then` and `Else` of an If on one line.
std::vector<Statement> onOneLine(LineParser& words, const LogicalLine& line) {
    std::vector<Statement> all;
    do {
        all.push_back(simple(words, line));
        requireNoCheck(all.back());
    } while (words.takeSymbol(u":"));
    return all;
}

/// Takes the lines around a macro, which say nothing that a scenario does not.
bool takesFrame(LineParser& words) {
    const bool isQualified = words.takeWords(u"Public", u"Sub") || words.takeWords(u"Private", u"Sub");
    if (!isQualified && !words.takeWord(u"Sub")) {
        return words.takeWords(u"End", u"Sub");
    }
    static_cast<void>(words.name("the name of the macro"));
    if (words.takeSymbol(u"(")) {
        words.requireSymbol(u")");
    }
    return true;
}

} // namespace

std::optional<LogicalLine> LineJoiner::add(std::u16string_view line, std::size_t number) {
    std::vector<Token> tokens = tokenize(line, number);
    const std::size_t blanks = joined_.text.empty() ? 0 : tokens.front().begin;
    const std::size_t shift = joined_.text.size() - blanks;
    const bool goesOn = tokens.size() > 1 && tokens[tokens.size() - 2].isWord(u"_");
    const std::size_t stop = std::max(tokens[tokens.size() - (goesOn ? 2 : 1)].begin, blanks);
    if (goesOn) {
        tokens.erase(tokens.end() - 2);
    }
    joined_.text += line.substr(blanks, stop - blanks);
    for (Token& token : tokens) {
        token.begin += shift;
        token.end += shift;
    }
    if (!joined_.tokens.empty()) {
        joined_.tokens.pop_back();
    }
    joined_.tokens.insert(joined_.tokens.end(), tokens.begin(), tokens.end());
    if (joined_.tokens.size() > mostTokens + 1) {
        joined_ = {};
        throw SyntaxError(
            {tokens.front().place, "expected a line of at most " + std::to_string(mostTokens) + " words"});
    }
    return goesOn ? std::nullopt : std::optional(std::exchange(joined_, {}));
}

std::vector<Statement> StatementReader::take(const LogicalLine& line) {
    LineParser words(line.tokens);
    do {
        if (words.peek().kind != TokenKind::End && !words.peek().isSymbol(u":")) {
            part(words, line);
        }
    } while (words.takeSymbol(u":"));
    words.end();
    return std::exchange(complete_, {});
}

void StatementReader::requireClosed(Position place) const {
    if (isOpen()) {
        const std::u16string_view closing = open_.back().closing;
        throw SyntaxError({place, closing.empty() ? "expected the statement that must raise the error"
                                                  : "expected '" + toUtf8(closing) + "' before"});
    }
}

void StatementReader::part(LineParser& words, const LogicalLine& line) {
    if (isOpen() && open_.back().closing.empty() && words.peek().isWord(u"expect")) {
        words.fail("expected the statement that must raise the error");
    }
    if (!takesFrame(words) && !closing(words) && !branching(words, line) && !caseLine(words, line) &&
        !opening(words, line)) {
        put(simple(words, line));
    }
}

bool StatementReader::opening(LineParser& words, const LogicalLine& line) {
    const Token first = words.peek();
    if (words.takeWord(u"With")) {
        begin(With{{first.place, Omitted{}}, {}}, first.place, endWith);
        std::get<With>(open_.back().statement.node).subject = words.expression();
    } else if (words.takeWord(u"For")) {
        beginFor(words);
    } else if (words.takeWord(u"If")) {
        beginIf(words, line);
    } else if (words.peek().isWord(u"Do") || words.peek().isWord(u"While")) {
        beginWhile(words);
    } else if (words.takeWords(u"Select", u"Case")) {
        begin(SelectCase{{first.place, Omitted{}}, {}}, first.place, endSelect);
        std::get<SelectCase>(open_.back().statement.node).subject = words.expression();
    } else {
        return false;
    }
    if (isOpen() && open_.back().statement.text.empty()) {
        open_.back().statement.text = sourceFrom(first, words, line);
    }
    return true;
}

void StatementReader::beginFor(LineParser& words) {
    const Position place = words.last().place;
    if (words.takeWord(u"Each")) {
        begin(ForEach{{}, {place, Omitted{}}, {}}, place, endFor);
        auto& each = std::get<ForEach>(open_.back().statement.node);
        each.variable = words.variable();
        words.requireWord(u"In");
        each.collection = words.expression();
        return;
    }
    begin(ForNumbers{{}, {place, Omitted{}}, {place, Omitted{}}, {}, {}}, place, endFor);
    auto& numbers = std::get<ForNumbers>(open_.back().statement.node);
    numbers.variable = words.variable();
    words.requireSymbol(u"=");
    numbers.first = words.expression();
    words.requireWord(u"To");
    numbers.last = words.expression();
    if (words.takeWord(u"Step")) {
        numbers.step = words.expression();
    }
}

void StatementReader::beginWhile(LineParser& words) {
    const Position place = words.peek().place;
    const bool isDo = words.takeWord(u"Do");
    const bool isUntil = isDo && words.takeWord(u"Until");
    if (!isUntil) {
        words.requireWord(u"While");
    }
    begin(While{{place, Omitted{}}, {}}, place, isDo ? endDo : endWhile);
    Expression condition = words.expression();
    if (isUntil) {
        Operation inverse{Operator::Not, {}};
        inverse.operands.push_back(std::move(condition));
        condition = {place, std::move(inverse)};
    }
    std::get<While>(open_.back().statement.node).condition = std::move(condition);
}

void StatementReader::beginIf(LineParser& words, const LogicalLine& line) {
    const Token first = words.last();
    begin(If{}, first.place, endIf);
    auto& branches = std::get<If>(open_.back().statement.node).branches;
    open_.back().body = &branches.emplace_back().body;
    branches.back().condition = words.expression();
    words.requireWord(u"Then");
    if (words.peek().kind == TokenKind::End) {
        return;
    }
    branches.back().body = onOneLine(words, line);
    if (words.takeWord(u"Else")) {
        branches.push_back({std::nullopt, onOneLine(words, line)});
    }
    open_.back().statement.text = sourceFrom(first, words, line);
    put(end());
}

/// Takes a line that begins with `Case`.
bool StatementReader::caseLine(LineParser& words, const LogicalLine& line) {
    const Token first = words.peek();
    if (!words.takeWord(u"Case")) {
        return false;
    }
    auto* const selection = isOpen() ? std::get_if<SelectCase>(&open_.back().statement.node) : nullptr;
    if (selection == nullptr) {
        throw SyntaxError({first.place, "expected 'Select Case' before 'Case'"});
    }
    Case& added = selection->cases.emplace_back();
    open_.back().body = &added.body;
    if (!words.takeWord(u"Else")) {
        do {
            added.ranges.push_back({words.expression(), {}});
            if (words.takeWord(u"To")) {
                added.ranges.back().last = words.expression();
            }
        } while (words.takeSymbol(u","));
    }
    open_.back().statement.text += u'\n' + sourceFrom(first, words, line);
    return true;
}

bool StatementReader::branching(LineParser& words, const LogicalLine& line) {
    const Token first = words.peek();
    const bool isLast = words.takeWord(u"Else");
    if (!isLast && !words.takeWord(u"ElseIf")) {
        return false;
    }
    auto* const choice = isOpen() ? std::get_if<If>(&open_.back().statement.node) : nullptr;
    if (choice == nullptr || !choice->branches.back().condition) {
        throw SyntaxError({first.place, "expected 'If' before " + first.display()});
    }
    Branch& branch = choice->branches.emplace_back();
    open_.back().body = &branch.body;
    if (!isLast) {
        branch.condition = Expression{first.place, Omitted{}};
        branch.condition = words.expression();
        words.requireWord(u"Then");
    }
    open_.back().statement.text += u'\n' + sourceFrom(first, words, line);
    return true;
}

bool StatementReader::closing(LineParser& words) {
    const Position place = words.peek().place;
    const std::u16string_view found = words.takeWords(u"End", u"With")     ? endWith
                                      : words.takeWords(u"End", u"If")     ? endIf
                                      : words.takeWords(u"End", u"Select") ? endSelect
                                      : words.takeWord(u"Next")            ? endFor
                                      : words.takeWord(u"Loop")            ? endDo
                                      : words.takeWord(u"Wend")            ? endWhile
                                                                           : std::u16string_view();
    if (found.empty()) {
        return false;
    }
    if (!isOpen() || open_.back().closing != found) {
        throw SyntaxError({place, isOpen()
                                      ? "expected '" + toUtf8(open_.back().closing) + "' before '" + toUtf8(found) + "'"
                                      : "expected the beginning of the block that ends with '" + toUtf8(found) + "'"});
    }
    Statement block = end();
    if (found == endFor && !words.atEnd()) {
        const auto* const each = std::get_if<ForEach>(&block.node);
        const std::u16string& variable = each != nullptr ? each->variable : std::get<ForNumbers>(block.node).variable;
        if (!words.peek().isWord(variable)) {
            words.fail("expected '" + toUtf8(variable) + "', or nothing");
        }
        static_cast<void>(words.variable());
    }
    block.text += u'\n' + std::u16string(found);
    put(std::move(block));
    return true;
}

void StatementReader::begin(decltype(Statement::node) node, Position place, std::u16string_view closing) {
    Open& open = open_.emplace_back(Open{{place, {}, std::move(node)}, nullptr, closing});
    if (auto* const with = std::get_if<With>(&open.statement.node)) {
        open.body = &with->body;
    } else if (auto* const each = std::get_if<ForEach>(&open.statement.node)) {
        open.body = &each->body;
    } else if (auto* const numbers = std::get_if<ForNumbers>(&open.statement.node)) {
        open.body = &numbers->body;
    } else if (auto* const loop = std::get_if<While>(&open.statement.node)) {
        open.body = &loop->body;
    } else if (auto* const failure = std::get_if<ExpectError>(&open.statement.node)) {
        open.body = &failure->statements;
    }
}

Statement StatementReader::end() {
    Statement statement = std::move(open_.back().statement);
    open_.pop_back();
    return statement;
}

void StatementReader::put(Statement statement) {
    const auto* const failure = std::get_if<ExpectError>(&statement.node);
    if (failure != nullptr && failure->statements.empty()) {
        std::u16string text = std::move(statement.text);
        begin(std::move(statement.node), statement.place, {});
        open_.back().statement.text = std::move(text);
        return;
    }
    if (!isOpen()) {
        complete_.push_back(std::move(statement));
        return;
    }
    Open& around = open_.back();
    if (around.closing.empty()) {
        around.statement.text += u' ' + statement.text;
        around.body->push_back(std::move(statement));
        put(end());
        return;
    }
    requireNoCheck(statement);
    if (around.body == nullptr) {
        throw SyntaxError({statement.place, "expected 'Case' behind 'Select Case'"});
    }
    around.statement.text += u"\n  " + indented(statement.text);
    around.body->push_back(std::move(statement));
}

std::vector<Statement> MacroReader::take(std::u16string_view line) {
    try {
        const std::optional<LogicalLine> whole = joiner_.add(line, 1);
        return whole ? statements_.take(*whole) : std::vector<Statement>();
    } catch (const SyntaxError&) {
        *this = {};
        throw;
    }
}

} // namespace host::language
