#include "host/language/Parser.h"

#include "automation/Text.h"
#include "exercises/Catalogue.h"
#include "host/language/Encoding.h"
#include "host/language/Names.h"
#include "host/language/StatementReader.h"
#include "host/language/Words.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace host::language {

namespace {

/// True for an expectation of values, and for a variable that is set.
bool changesNothing(const Statement& statement) {
    const auto* const assignment = std::get_if<Assignment>(&statement.node);
    const std::vector<const std::vector<Statement>*> blocks = blocksOf(statement);
    return std::holds_alternative<ExpectValues>(statement.node) ||
           std::holds_alternative<Declaration>(statement.node) ||
           (assignment != nullptr && !std::get<Reference>(assignment->target.node).object) ||
           (!blocks.empty() && std::all_of(blocks.begin(), blocks.end(), [](const std::vector<Statement>* block) {
               return std::all_of(block->begin(), block->end(), changesNothing);
           }));
}

class FileParser {
public:
    explicit FileParser(std::string fileName) { file_.name = std::move(fileName); }

    ScenarioFile run(std::string_view bytes) {
        guarded([&] { lines(textOf(bytes)); });
        if (!wrong_.empty()) {
            throw WrongLines(file_.name, std::move(wrong_));
        }
        return std::move(file_);
    }

private:
    template <typename Step> void guarded(const Step& step) {
        try {
            step();
        } catch (const SyntaxError& error) {
            wrong_.push_back(error.remark);
        }
    }

    void lines(std::u16string_view text) {
        std::size_t number = 1;
        for (std::size_t start = 0; start <= text.size(); ++number) {
            const std::size_t stop = std::min(text.find(u'\n', start), text.size());
            line(text.substr(start, stop - start), number);
            start = stop + 1;
        }
        finish({number - 1, 1});
    }

    void line(std::u16string_view line, std::size_t number) {
        guarded([&] {
            const bool isFirst = !joiner_.isOpen();
            if (const std::optional<LogicalLine> whole = joiner_.add(line, number)) {
                if (whole->tokens.size() > 1) {
                    content(*whole);
                } else if (isFirst && !isHeaded()) {
                    heading(line);
                }
            }
        });
    }

    void heading(std::u16string_view comment) {
        constexpr std::u16string_view blanks = u" \t\r#'";
        const std::size_t first = std::min(comment.find_first_not_of(blanks), comment.size());
        const std::size_t last = comment.find_last_not_of(u" \t\r") + 1;
        if (first < last) {
            file_.heading += (file_.heading.empty() ? u"" : u" ");
            file_.heading += comment.substr(first, last - first);
        }
    }

    void content(const LogicalLine& line) {
        LineParser words(line.tokens);
        const Position place = words.peek().place;
        if (words.takeWord(u"question")) {
            question(words, place);
        } else if (!isHeaded() && words.takeWordBefore(TokenKind::Text, u"class")) {
            file_.className = words.sentence("the name of the class, in quotes");
            words.end();
        } else {
            block(words, place, line);
        }
    }

    void block(LineParser& words, Position place, const LogicalLine& line) {
        if (!isHeaded()) {
            file_.question = unknown;
            wrong_.push_back({place, "expected 'question' and its number before anything else"});
        }
        if (words.peek().isWord(u"course") || words.peek().isWord(u"scenario")) {
            reader_.requireClosed(place);
        }
        if (words.takeWord(u"course")) {
            course(words, place);
        } else if (words.takeWord(u"scenario")) {
            scenario(words, place);
        } else if (words.takeWord(u"before")) {
            before(words, place);
        } else if (reader_.isOpen() || (!grounds(words, place) && !contract(words, place))) {
            for (Statement& statement : reader_.take(line)) {
                add(std::move(statement));
            }
        }
    }

    [[nodiscard]] bool isHeaded() const { return file_.question != 0 || !file_.className.empty(); }

    void question(LineParser& words, Position place) {
        if (isHeaded()) {
            throw SyntaxError({place, "expected one question only"});
        }
        const std::string expected = "a question of the course, " + std::to_string(exercises::firstQuestion) + " to " +
                                     std::to_string(exercises::lastQuestion);
        const Token& number = words.peek();
        file_.question = unknown;
        const std::int32_t named = words.number(expected);
        if (named < exercises::firstQuestion || named > exercises::lastQuestion) {
            throw SyntaxError({number.place, "expected " + expected + ", found " + number.display()});
        }
        file_.question = named;
        words.end();
    }

    /// Reads a line of the contract. False where it is none.
    bool contract(LineParser& words, Position place) {
        constexpr auto verdicts = std::to_array<std::tuple<std::u16string_view, TokenKind, Expectation::Kind>>({
            {u"letter", TokenKind::Text, Expectation::Kind::Letter},
            {u"remark", TokenKind::Text, Expectation::Kind::Remark},
            {u"error", TokenKind::Number, Expectation::Kind::Error},
        });
        for (const auto& [word, next, kind] : verdicts) {
            if (words.takeWordBefore(next, word)) {
                meaning(words.meaning(kind), place);
                return true;
            }
        }
        if (words.takeWordBefore(TokenKind::Text, u"task")) {
            task(words, place);
        } else if (words.takeWordBefore(TokenKind::End, u"delivered")) {
            delivered(place);
        } else {
            return false;
        }
        return true;
    }

    void task(LineParser& words, Position place) {
        requireBeforeCourse(place, "the task");
        if (!file_.contract.task.empty()) {
            throw SyntaxError({place, "expected one task only"});
        }
        file_.contract.task = words.sentence("what the learner is to do, in quotes");
        words.end();
    }

    void meaning(Meaning meaning, Position place) {
        requireBeforeCourse(place, "what a verdict means");
        if (file_.contract.meaningOf(meaning.verdict.letter) != nullptr) {
            throw SyntaxError({place, "expected one meaning only for " + inQuotes(meaning.verdict.letter)});
        }
        meaning.place = place;
        file_.contract.meanings.push_back(std::move(meaning));
    }

    void delivered(Position place) {
        requireBeforeCourse(place, "what must be delivered");
        if (block_ != nullptr) {
            throw SyntaxError({place, "expected 'delivered' once only"});
        }
        block_ = &file_.contract.delivered;
    }

    void requireBeforeCourse(Position place, const std::string& what) const {
        if (block_ != nullptr && block_ != &file_.contract.delivered) {
            throw SyntaxError({place, "expected " + what + " before the course"});
        }
    }

    void course(LineParser& words, Position place) {
        words.end();
        if (block_ != nullptr && block_ != &file_.contract.delivered) {
            throw SyntaxError({place, "expected one course only, before the scenarios"});
        }
        block_ = &file_.course;
    }

    void scenario(LineParser& words, Position place) {
        if (block_ == nullptr || block_ == &file_.contract.delivered) {
            wrong_.push_back({place, "expected 'course' before the first scenario"});
        }
        file_.scenarios.emplace_back().place = place; // whatever is wrong with its title
        block_ = &file_.scenarios.back().statements;
        const std::u16string title = words.text("the title of the scenario, in quotes");
        words.end();
        const auto isSame = [&](const Scenario& other) { return other.title == title; };
        if (std::any_of(file_.scenarios.begin(), file_.scenarios.end() - 1, isSame)) {
            throw SyntaxError({place, "expected a title of its own: there is a scenario of this title already"});
        }
        file_.scenarios.back().title = title;
    }

    void before(LineParser& words, Position place) {
        if (!words.takeWord(u"InitQuestion")) {
            throw SyntaxError({words.peek().place, "expected 'InitQuestion', found " + words.peek().display()});
        }
        words.end();
        if (file_.scenarios.empty() || !block_->empty()) {
            throw SyntaxError({place, "expected 'before InitQuestion' right after the title of a scenario"});
        }
        file_.scenarios.back().startsBeforeInitQuestion = true;
    }

    /// Reads the line below the title of a promise that says why it is believed, and what hangs on it. False where it
    /// is none.
    bool grounds(LineParser& words, Position place) {
        constexpr auto all = std::to_array<std::pair<std::u16string_view, Grounds>>(
            {{u"documented", Grounds::Documented}, {u"assumed", Grounds::Assumed}, {u"contested", Grounds::Contested}});
        for (const auto& [word, grounds] : all) {
            if (words.takeWordBefore(TokenKind::Text, word)) {
                if (file_.className.empty() || file_.scenarios.empty() || !block_->empty()) {
                    throw SyntaxError({place, "expected the grounds of a promise right after its title"});
                }
                file_.scenarios.back().grounds = grounds;
                file_.scenarios.back().decides = words.text("the questions that hang on it, in quotes");
                words.end();
                return true;
            }
        }
        return false;
    }

    void add(Statement statement) {
        if (block_ == nullptr && file_.question == unknown) {
            return; // that has been said
        }
        if (block_ == nullptr) {
            wrong_.push_back({statement.place, "expected 'course' or 'scenario' before the first statement"});
            block_ = &file_.course;
        }
        if (block_ == &file_.course && std::holds_alternative<Check>(statement.node)) {
            throw SyntaxError({statement.place, "expected a statement that builds the presentation: "
                                                "checks belong to scenarios"});
        }
        if (block_ == &file_.contract.delivered && !changesNothing(statement)) {
            throw SyntaxError({statement.place, "expected 'expect', or a variable to be set: what is delivered is "
                                                "looked at, not changed"});
        }
        if (auto* const check = std::get_if<Check>(&statement.node)) {
            check->expected = file_.contract.meantBy(check->expected);
        }
        block_->push_back(std::move(statement));
    }

    void finish(Position end) {
        reader_.requireClosed(end);
        if (wrong_.empty() && !isHeaded()) {
            throw SyntaxError({end, "expected 'question' and its number"});
        }
        if (wrong_.empty()) {
            requireKnownNames();
        }
        if (wrong_.empty()) {
            requireExpectations();
        }
    }

    void requireKnownNames() {
        const auto read = [this](const std::vector<Statement>& statements) {
            const std::vector<Remark> found = unknownNames(statements);
            wrong_.insert(wrong_.end(), found.begin(), found.end());
        };
        read(file_.contract.delivered);
        read(file_.course);
        for (const Scenario& scenario : file_.scenarios) {
            read(scenario.statements);
        }
    }

    /// A scenario must say what comes of its moves.
    void requireExpectations() {
        for (const Scenario& scenario : file_.scenarios) {
            if (std::none_of(scenario.statements.begin(), scenario.statements.end(), expectsSomething)) {
                wrong_.push_back({scenario.place,
                                  "expected a 'check' or an 'expect' in this scenario, which passes whatever happens"});
            }
        }
    }

    static constexpr std::int32_t unknown = -1;

    ScenarioFile file_;
    std::vector<Statement>* block_ = nullptr;
    LineJoiner joiner_;
    StatementReader reader_;
    std::vector<Remark> wrong_;
};

} // namespace

ScenarioFile parse(std::string fileName, std::string_view bytes) {
    return FileParser(std::move(fileName)).run(bytes);
}

Statement parseStatement(std::u16string_view lines) {
    MacroReader reader;
    std::vector<Statement> found;
    while (true) {
        const std::size_t stop = std::min(lines.find(u'\n'), lines.size());
        for (Statement& statement : reader.take(lines.substr(0, stop))) {
            found.push_back(std::move(statement));
        }
        if (stop == lines.size()) {
            break;
        }
        lines.remove_prefix(stop + 1);
    }
    if (reader.isOpen() || found.size() != 1) {
        throw SyntaxError({{}, "expected one statement"});
    }
    return std::move(found.front());
}

Expression parseExpression(std::u16string_view text) {
    return LineParser(tokenize(text, 1)).wholeExpression();
}

} // namespace host::language
