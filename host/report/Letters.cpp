#include "host/report/Letters.h"

#include "automation/Text.h"

#include <algorithm>
#include <functional>
#include <tuple>

namespace host::report {

namespace {

std::vector<Letter> declared(const FileResult& file) {
    std::vector<Letter> all;
    for (const language::Meaning& meaning : file.meanings) {
        if (const Expectation& verdict = meaning.verdict; !verdict.letter.empty()) {
            const bool isRemark = verdict.kind == Expectation::Kind::Remark;
            all.push_back({automation::toUtf8(verdict.letter),
                           false,
                           isRemark,
                           {},
                           automation::toUtf8(meaning.text),
                           meaning.place.line});
        }
    }
    return all;
}

void reach(std::vector<Letter>& all, const Reading& reading, std::size_t scenario) {
    const std::string letter = automation::toUtf8(reading.causeErreur);
    auto found = std::find_if(all.begin(), all.end(), [&](const Letter& candidate) {
        return candidate.letter == letter && candidate.isGeneral == reading.erreurGenerale;
    });
    if (found == all.end()) {
        found = all.insert(all.end(), {letter, reading.erreurGenerale, reading.bravoNuance, {}});
    }
    if (found->reachedBy.empty() || found->reachedBy.back() != scenario) {
        found->reachedBy.push_back(scenario);
    }
}

} // namespace

std::vector<Letter> lettersOf(const FileResult& file) {
    std::vector<Letter> all = declared(file);
    for (std::size_t i = 0; i < file.results.size(); ++i) {
        for (const Attempt& attempt : file.results[i].attempts) {
            if (attempt.reading && !attempt.reading->error && !attempt.reading->causeErreur.empty()) {
                reach(all, *attempt.reading, i);
            }
        }
    }
    std::stable_sort(all.begin(), all.end(), [](const Letter& left, const Letter& right) {
        return std::tie(left.isGeneral, left.letter) < std::tie(right.isGeneral, right.letter);
    });
    return all;
}

std::vector<language::Remark> lettersAmiss(const FileResult& file) {
    const std::vector<Letter> letters = lettersOf(file);
    const bool isDeclaring = std::any_of(letters.begin(), letters.end(), std::mem_fn(&Letter::line));
    std::vector<language::Remark> remarks;
    for (const Letter& letter : letters) {
        if (isDeclaring && !letter.isGeneral && letter.line == 0) {
            const std::size_t line = file.results.at(letter.reachedBy.front()).line;
            remarks.push_back({{line, 1}, "the host reads \"" + letter.letter + "\", a letter that is not declared"});
        } else if (file.isQuestion() && !file.isSample && letter.reachedBy.empty()) {
            remarks.push_back({{letter.line, 1}, "no scenario reaches the letter \"" + letter.letter + "\""});
        }
    }
    return remarks;
}

} // namespace host::report
