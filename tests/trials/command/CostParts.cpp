#include "tests/trials/command/CostParts.h"

#include <iomanip>
#include <ostream>

namespace trials {

namespace {

/// Most that a figure for one word may grow from one deck to the largest.
constexpr double mostCallsGrowth = 1.01;
constexpr double mostTimeGrowth = 2;

} // namespace

void Bounds::hold(bool isWithin, std::string_view what) {
    if (!isWithin) {
        out << "falls short: " << what << '\n';
        isGood = false;
    }
}

bool printGrowth(cost::DeckSize size,
                 const std::function<cost::QuestionCost(const language::ScenarioFile&, std::size_t)>& costOf,
                 std::ostream& out) {
    out << "slides    words    calls  prescribed  calls a word  milliseconds  ns a word\n";
    const std::size_t slides = size.slides;
    double firstCalls = 0;
    double firstTime = 0;
    Bounds bounds{out};
    for (const std::size_t times : {1U, 2U, 4U, 8U}) {
        size.slides = slides * times;
        const language::ScenarioFile file = cost::largeDeck(size);
        const cost::QuestionCost cost = costOf(file, times);
        const auto words = static_cast<double>(size.words());
        const double calls = static_cast<double>(cost.testePoint.automationCalls) / words;
        const std::size_t prescribed = cost::prescribedAutomationCalls(size);
        const double time = cost.testePoint.time.count() / words;
        out << std::setw(6) << size.slides << std::setw(9) << size.words() << std::setw(9)
            << cost.testePoint.automationCalls << std::setw(12) << prescribed << std::fixed << std::setprecision(3)
            << std::setw(14) << calls << std::setprecision(1) << std::setw(14) << cost.testePoint.time.count()
            << std::setprecision(0) << std::setw(11) << time * 1e6 << std::endl;
        const Expectation* const expected = file.scenarios.front().lastExpectation();
        bounds.hold(expected->matches(cost.reading), "the check does not come to " + expected->display());
        if (times == 1) {
            firstCalls = calls;
            firstTime = time;
        }
        bounds.hold(cost.testePoint.automationCalls == prescribed, "not the calls prescribed");
        bounds.hold(calls <= firstCalls * mostCallsGrowth, "the calls for a word grow");
        bounds.hold(time <= firstTime * mostTimeGrowth, "the time for a word grows");
    }
    return bounds.isGood;
}

} // namespace trials
