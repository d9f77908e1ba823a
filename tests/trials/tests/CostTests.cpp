#include "host/command/Library.h"
#include "host/world/EmbeddedWorld.h"
#include "tests/trials/cost/LargeDeck.h"
#include "tests/trials/cost/QuestionCost.h"

#include <gtest/gtest.h>

namespace cost_tests {

const host::WorldMaker makeWorld = host::makeEmbeddedWorld;

TEST(Cost, ALargerDeckTakesAsManyCallsAsItsWordsDemand) {
    for (const std::size_t slides : {2U, 4U}) {
        const trials::cost::DeckSize size{slides, 3, 7};
        const host::language::ScenarioFile file = trials::cost::largeDeck(size);
        const auto cost = trials::cost::costOf(file, host::Course(file, makeWorld), makeWorld, 0);
        EXPECT_TRUE(file.scenarios.front().lastExpectation()->matches(cost.reading));
        EXPECT_EQ(cost.testePoint.automationCalls, trials::cost::prescribedAutomationCalls(size)) << slides;
    }
}

} // namespace cost_tests
