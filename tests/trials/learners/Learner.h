#pragma once

#include "tests/trials/learners/Draw.h"
#include "tests/trials/learners/Trial.h"

namespace trials::learners {

/// What a learner has done.
struct Record {
    Moves moves; ///< up to the first check that is not agreed on, or to the last one
    std::vector<Finding> findings;

    [[nodiscard]] bool isAgreed() const { return findings.back().isAgreed(); }
};

/// A learner who works at random: often as a scenario of the question does, with slips and by what another scenario
/// does, sometimes at will. Moves that PowerPoint refuses are left out of what he has done.
class Learner {
public:
    /// All must outlive this object.
    Learner(const language::ScenarioFile& file, const Course& course, Draw& draw);

    /// From InitQuestion to the closing of the question.
    [[nodiscard]] Record work() const;

private:
    void workOn(Trial& trial, Moves& moves) const;
    void followScenarios(Trial& trial, Moves& moves) const;
    void doAnything(Trial& trial, Moves& moves) const;
    static void perform(const std::u16string& gesture, Trial& trial, Moves& moves);

    std::int32_t question_;
    const Course& course_;
    Draw& draw_;
    std::vector<Moves> ways_;         ///< for each check of the scenarios, the learner's moves before it
    std::vector<std::size_t> slides_; ///< those whose shapes the moves speak of, as often as they do
};

} // namespace trials::learners
