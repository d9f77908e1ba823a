#include "host/bench/QuestionCost.h"
#include "host/command/Library.h"
#include "host/world/EmbeddedWorld.h"

#include <gtest/gtest.h>

namespace {

const host::WorldMaker makeWorld = host::makeEmbeddedWorld;

/// What a question begins and ends with beside the prescribed steps is the keeping of the learner's command bars: as
/// many calls for every question.
TEST(BenchTests, QuestionsMakeThePrescribedCallsAndNoOthers) {
    constexpr std::size_t readingBars = 26;
    constexpr std::size_t restoringBars = 116;
    const host::Library library(SCENARIOS);
    for (const std::filesystem::path& path : library.filesOfCourse({})) {
        SCOPED_TRACE(path);
        const host::language::ScenarioFile file = host::load(path);
        const auto cost = host::bench::costOf(file, host::Course(file, makeWorld), makeWorld, 0);
        EXPECT_EQ(cost.prepareCalls, cost.prescribed.prepare);
        EXPECT_EQ(cost.testePoint.calls, cost.prescribed.testePoint);
        EXPECT_EQ(cost.initQuestion.calls, cost.prescribed.initQuestion + readingBars);
        EXPECT_EQ(cost.fermer.calls, cost.prescribed.fermer + restoringBars);
    }
}

} // namespace
