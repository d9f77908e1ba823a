#pragma once

#include "host/run/Guard.h"
#include "tests/trials/days/Mischief.h"

namespace trials::days {

/// What came of days.
struct Totals {
    std::size_t attempts = 0;
    std::size_t checks = 0;
    std::size_t struck = 0; ///< troubles
};

/// One day of one learner, on one machine, with one module: at its end everything must be as it was found.
class DayTrial {
public:
    /// `makeWorld` makes one whose PowerPoint is in a process of its own where `isRemote`.
    DayTrial(WorldMaker makeWorld, bool isRemote, std::function<void(const std::string&)> onAttempt)
        : makeWorld_(std::move(makeWorld)), isRemote_(isRemote), onAttempt_(std::move(onAttempt)) {}

    /// What is amiss. Adds to the totals.
    [[nodiscard]] std::vector<std::string> live(const Day& day, Totals& totals) const;

private:
    WorldMaker makeWorld_;
    bool isRemote_;
    std::function<void(const std::string&)> onAttempt_; ///< told of each that begins, in words
};

} // namespace trials::days
