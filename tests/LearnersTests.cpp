#include "host/command/Commands.h"
#include "host/learners/ScenarioText.h"
#include "host/learners/Shrink.h"
#include "host/run/Course.h"
#include "host/world/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <numeric>
#include <sstream>

namespace {

using namespace host;

std::string verified(const std::string& text, ExitCode expected) {
    const TemporaryFolder folder;
    const std::string path = (folder.path() / "learner.scn").string();
    std::ofstream(path) << text;
    std::ostringstream out;
    EXPECT_EQ(verify({{}, {path}}, Library(SCENARIOS), makeEmbeddedWorld, out), expected) << out.str() << text;
    return out.str();
}

/// What is saved of a disagreement is read, and falls short where the learner's verdict is another.
TEST(Learners, AreTakenDownAsScenarios) {
    for (const std::int32_t question : {304, 305, 306, 308, 312, 322}) {
        const language::ScenarioFile file = load(Library(SCENARIOS).fileOf(question));
        const Course course(file, makeEmbeddedWorld);
        learners::Draw draw(static_cast<std::uint32_t>(question));
        for (int i = 0; i < 3; ++i) {
            learners::Attempt attempt = learners::Learner(learners::lessonOf(question), course, draw).work();
            verified(scenarioText(file, attempt.moves, attempt.findings, "a learner"), ExitCode::Good);
            attempt.findings.back().wanted = Reading();
            attempt.findings.back().wanted.causeErreur = u"Q";
            EXPECT_FALSE(attempt.isAgreed());
            const std::string out =
                verified(scenarioText(file, attempt.moves, attempt.findings, "a learner"), ExitCode::FellShort);
            EXPECT_NE(out.find("expected the letter \"Q\", the host reads"), std::string::npos) << out;
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

} // namespace
