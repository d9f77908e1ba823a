#pragma once

#include "tests/trials/learners/Draw.h"
#include "tests/trials/learners/Lesson.h"
#include "tests/trials/learners/Trial.h"

namespace trials::learners {

/// What a learner has done.
struct Attempt {
    Moves moves; ///< up to the first check that is not agreed on, or to the last one
    std::vector<Finding> findings;

    [[nodiscard]] bool isAgreed() const { return findings.back().isAgreed(); }
};

/// A learner who works at random: often along the lesson, with slips, sometimes at will. Moves that PowerPoint refuses
/// are left out of what he has done.
class Learner {
public:
    /// All must outlive this object.
    Learner(const Lesson& lesson, const Course& course, Draw& draw) : lesson_(lesson), course_(course), draw_(draw) {}

    /// From InitQuestion to the closing of the question.
    [[nodiscard]] Attempt work() const;

private:
    void workOn(Trial& trial, Moves& moves) const;
    void followLesson(Trial& trial, Moves& moves) const;
    void doAnything(Trial& trial, Moves& moves) const;
    static void perform(const std::u16string& gesture, Trial& trial, Moves& moves);

    const Lesson& lesson_;
    const Course& course_;
    Draw& draw_;
};

} // namespace trials::learners
