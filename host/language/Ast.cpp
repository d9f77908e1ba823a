#include "host/language/Ast.h"

#include "automation/Text.h"

#include <algorithm>

namespace host::language {

namespace {

bool isCheck(const Statement& statement) {
    return std::holds_alternative<Check>(statement.node);
}

} // namespace

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

std::u16string ScenarioFile::subject() const {
    return contract.task.empty() ? heading
                                 : u"Question " + automation::decimal(question) + u": " + contract.task + u'.';
}

} // namespace host::language
