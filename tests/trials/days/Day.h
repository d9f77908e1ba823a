#pragma once

#include "tests/trials/cost/LongRun.h"
#include "tests/trials/learners/Learner.h"
#include "tests/trials/torture/Fault.h"

namespace trials::days {

using Lesson = cost::BuiltCourse;

/// A fault in one of a host's calls.
struct Trouble {
    std::size_t hostCall = 0; ///< of an attempt, from 1
    torture::Fault fault;
    std::size_t position = 0; ///< of the call that leaves the module meanwhile, from 1
};

/// One question begun, worked on and left.
struct Attempt {
    /// The PowerPoint that the host brings.
    enum class Arrival : std::uint8_t { Kept, None, OfLearner };
    /// How the host ends it.
    enum class Departure : std::uint8_t { Fermer, Nothing, Quitter, FermerAndQuitter };

    const Lesson* lesson = nullptr;
    Arrival arrival{};
    learners::Moves moves;
    Departure departure{};
    std::vector<Trouble> troubles;

    /// In words, in one line.
    [[nodiscard]] std::string display() const;
};

using Day = std::vector<Attempt>;

/// Draws what learners, hosts and PowerPoint do in a day.
class Planner {
public:
    /// `lessons` must outlive this object and its days. `faults` are those that may strike, one attempt in so many
    /// hundred.
    Planner(const std::vector<Lesson>& lessons, const std::vector<torture::Fault>& faults, std::size_t percent);

    /// The day of a number: every lesson so many times, in any order.
    [[nodiscard]] Day day(std::uint32_t number, std::size_t attempts);

private:
    [[nodiscard]] Attempt attempt(std::size_t lesson);

    const std::vector<Lesson>& lessons_;
    const std::vector<torture::Fault>& faults_;
    std::size_t percent_;
    learners::Draw draw_{0};
    std::vector<learners::Learner> learners_; ///< one a lesson
};

} // namespace trials::days
