#include "host/language/Ast.h"

#include "automation/Text.h"

#include <algorithm>

namespace host::language {

namespace {

bool isCheck(const Statement& statement) {
    return std::holds_alternative<Check>(statement.node);
}

} // namespace

std::vector<const std::vector<Statement>*> blocksOf(const Statement& statement) {
    std::vector<const std::vector<Statement>*> blocks;
    if (const auto* const choice = std::get_if<If>(&statement.node)) {
        for (const Branch& branch : choice->branches) {
            blocks.push_back(&branch.body);
        }
    } else if (const auto* const with = std::get_if<With>(&statement.node)) {
        blocks.push_back(&with->body);
    } else if (const auto* const numbers = std::get_if<ForNumbers>(&statement.node)) {
        blocks.push_back(&numbers->body);
    } else if (const auto* const each = std::get_if<ForEach>(&statement.node)) {
        blocks.push_back(&each->body);
    } else if (const auto* const loop = std::get_if<While>(&statement.node)) {
        blocks.push_back(&loop->body);
    } else if (const auto* const selection = std::get_if<SelectCase>(&statement.node)) {
        for (const Case& one : selection->cases) {
            blocks.push_back(&one.body);
        }
    }
    return blocks;
}

bool expectsSomething(const Statement& statement) {
    const std::vector<const std::vector<Statement>*> blocks = blocksOf(statement);
    return isCheck(statement) || std::holds_alternative<ExpectValues>(statement.node) ||
           std::holds_alternative<ExpectError>(statement.node) ||
           std::any_of(blocks.begin(), blocks.end(), [](const std::vector<Statement>* block) {
               return std::any_of(block->begin(), block->end(), expectsSomething);
           });
}

std::span<const Statement> Scenario::firstMoves() const {
    return {statements.begin(), std::find_if(statements.begin(), statements.end(), isCheck)};
}

const Expectation* Scenario::lastExpectation() const {
    const auto last = std::find_if(statements.rbegin(), statements.rend(), isCheck);
    return last == statements.rend() ? nullptr : &std::get<Check>(last->node).expected;
}

std::vector<std::u16string> Contract::letters() const {
    std::vector<std::u16string> all;
    for (const Meaning& meaning : meanings) {
        if (!meaning.verdict.letter.empty()) {
            all.push_back(meaning.verdict.letter);
        }
    }
    return all;
}

const Meaning* Contract::meaningOf(std::u16string_view letter) const {
    const auto found = std::find_if(meanings.begin(), meanings.end(), [letter](const Meaning& meaning) {
        return !letter.empty() && meaning.verdict.letter == letter;
    });
    return found == meanings.end() ? nullptr : &*found;
}

Expectation Contract::success() const {
    const auto found = std::find_if(meanings.begin(), meanings.end(),
                                    [](const Meaning& meaning) { return meaning.verdict.isSuccess(); });
    return found == meanings.end() ? Expectation() : found->verdict;
}

Expectation Contract::meantBy(const Expectation& stated) const {
    const Expectation passing = success();
    const bool isRaised = stated.kind == Expectation::Kind::Success && passing.kind == Expectation::Kind::Error;
    return isRaised ? passing : stated;
}

std::u16string ScenarioFile::subject() const {
    return contract.task.empty() ? heading
                                 : u"Question " + automation::decimal(question) + u": " + contract.task + u'.';
}

} // namespace host::language
