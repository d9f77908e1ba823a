#include "host/command/Library.h"
#include "host/world/EmbeddedWorld.h"
#include "tests/trials/cost/QuestionCost.h"

#include <gtest/gtest.h>

namespace cost_tests {

const host::WorldMaker makeWorld = host::makeEmbeddedWorld;

TEST(BenchTests, QuestionsMakeThePrescribedCallsAndThoseThatKeepTheBars) {
    const host::Library library(SCENARIOS);
    for (const std::filesystem::path& path : library.filesOfCourse({})) {
        SCOPED_TRACE(path);
        const host::language::ScenarioFile file = host::load(path);
        const auto cost = trials::cost::costOf(file, host::Course(file, makeWorld), makeWorld, 0);
        EXPECT_EQ(cost.prepareCalls, cost.prescribed.prepare);
        EXPECT_EQ(cost.testePoint.calls, cost.prescribed.testePoint);
        EXPECT_EQ(cost.initQuestion.calls, cost.prescribed.initQuestion + cost.keeping.initQuestion);
        EXPECT_EQ(cost.fermer.calls, cost.prescribed.fermer + cost.keeping.fermer);
    }
}

TEST(BenchTests, ALargerDeckTakesAsManyCallsAsItsWordsDemand) {
    for (const std::size_t slides : {2U, 4U}) {
        const trials::cost::DeckSize size{slides, 3, 7};
        const host::language::ScenarioFile file = trials::cost::largeDeck(size);
        const auto cost = trials::cost::costOf(file, host::Course(file, makeWorld), makeWorld, 0);
        EXPECT_TRUE(file.scenarios.front().lastExpectation()->matches(cost.reading));
        EXPECT_EQ(cost.testePoint.automationCalls, trials::cost::prescribedAutomationCalls(size)) << slides;
    }
}

} // namespace cost_tests
