#include "host/report/Letters.h"

#include "automation/Text.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace host::report {

namespace {

/// The letters of the questions from 304 on; 301 to 303 have none.
constexpr std::array<std::string_view, 20> lettersByQuestion{
    "AB",   "ABC",    "ABCF",   "ABC",    "CDEFGH", "ABCDEFGZ", "ABCZ", "ABCDEFZ", "ABCZ",    "AB",
    "ABCZ", "ABCDEZ", "ABCDGZ", "ABCDEF", "ABCZ",   "ABCDEFZ",  "A",    "ABCDEZ",  "ABCDEFH", "BCDEF",
};
constexpr std::int32_t firstWithLetters = 304;

std::vector<Letter> declared(std::int32_t question) {
    std::vector<Letter> all;
    if (question >= firstWithLetters &&
        question < firstWithLetters + static_cast<std::int32_t>(lettersByQuestion.size())) {
        for (const char letter : lettersByQuestion.at(static_cast<std::size_t>(question - firstWithLetters))) {
            all.push_back({std::string(1, letter), false, false, {}});
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
        found = all.insert(all.end(), {letter, reading.erreurGenerale, false, {}});
    }
    found->isRemark = found->isRemark || reading.bravoNuance;
    if (found->reachedBy.empty() || found->reachedBy.back() != scenario) {
        found->reachedBy.push_back(scenario);
    }
}

} // namespace

std::vector<Letter> lettersOf(const FileResult& file) {
    std::vector<Letter> all = file.isQuestion() ? declared(file.question) : std::vector<Letter>();
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

} // namespace host::report
