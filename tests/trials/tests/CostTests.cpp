#include "host/command/Library.h"
#include "host/world/EmbeddedWorld.h"
#include "tests/trials/cost/LargeDeck.h"
#include "tests/trials/cost/QuestionCost.h"

#include <gtest/gtest.h>

namespace cost_tests {

const host::WorldMaker makeWorld = host::makeEmbeddedWorld;

TEST(Cost, QuestionsMakeTheCallsOfTheirExpectedTracesInOrder) {
    const host::Library library(SCENARIOS);
    for (const std::filesystem::path& path : library.filesOfCourse({})) {
        SCOPED_TRACE(path);
        const host::language::ScenarioFile file = host::load(path);
        const auto cost = trials::cost::costOf(file, host::Course(file, makeWorld), makeWorld, 0);
        const auto difference = [&](const trials::cost::OperationCost& operation, host::HostCall call) {
            const trials::cost::PrescribedCalls prescribed(file.question, call);
            EXPECT_EQ(operation.calls, prescribed.calls + prescribed.keeping);
            return trials::trace::differenceOf(operation.lines, prescribed.trace);
        };
        EXPECT_EQ(difference(cost.initQuestion, host::HostCall::InitQuestion), "");
        EXPECT_EQ(difference(cost.testePoint, host::HostCall::TestePoint), "");
        EXPECT_EQ(difference(cost.fermer, host::HostCall::Fermer), "");
    }
}

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
