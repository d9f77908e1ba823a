#include "host/command/Library.h"
#include "host/language/Parser.h"
#include "host/run/Runner.h"
#include "tests/trials/learners/Learner.h"
#include "tests/trials/learners/Shrink.h"

#include <gtest/gtest.h>

#include <numeric>

namespace learners_tests {

using namespace trials;

/// What falls short in the only scenario of a file.
std::vector<language::Remark> failuresOf(const std::string& text) {
    const language::ScenarioFile file = language::parse("learner.scn", text);
    return Runner(file, makeEmbeddedWorld).run(file.scenarios.front()).failures;
}

/// What is saved of a disagreement is read, and falls short where the learner's verdict is another.
TEST(Learners, AreTakenDownAsScenarios) {
    for (const std::int32_t question : {304, 305, 306, 308, 312, 322}) {
        const language::ScenarioFile file = load(Library(SCENARIOS).fileOf(question));
        const Course course(file, makeEmbeddedWorld);
        learners::Draw draw(static_cast<std::uint32_t>(question));
        for (int i = 0; i < 3; ++i) {
            learners::Record record = learners::Learner(file, course, draw).work();
            const std::string right = learners::scenarioText(file, record.moves, record.findings, "a learner");
            EXPECT_TRUE(failuresOf(right).empty()) << failuresOf(right).front().in("learner.scn") << "\n" << right;
            record.findings.back().wanted = Reading();
            record.findings.back().wanted.causeErreur = u"Q";
            EXPECT_FALSE(record.isAgreed());
            const auto failures = failuresOf(learners::scenarioText(file, record.moves, record.findings, "a learner"));
            ASSERT_EQ(failures.size(), 1U);
            EXPECT_TRUE(failures.front().message.starts_with("expected the letter \"Q\", the host reads "));
        }
    }
}

TEST(Learners, AreCutDownToWhatCounts) {
    std::vector<int> moves(40);
    std::iota(moves.begin(), moves.end(), 0);
    std::size_t asked = 0;
    const auto holds = [&](const std::vector<int>& list) {
        ++asked;
        const auto has = [&](int move) { return std::find(list.begin(), list.end(), move) != list.end(); };
        return has(3) && has(17) && has(39);
    };
    EXPECT_EQ(learners::shrunk(moves, holds), (std::vector{3, 17, 39}));
    EXPECT_LT(asked, 400U);
}

} // namespace learners_tests
