#pragma once

#include "tests/trials/torture/Expected.h"
#include "tests/trials/torture/Run.h"

namespace trials::torture {

/// What came of a failed call.
struct Assessment {
    Answer answer = Answer::Wrong;
    std::vector<std::string> findings; ///< what is wrong; empty where all is as it must be
};

/// True where a host reads the same, and the same error is raised.
[[nodiscard]] bool isSameVerdict(const Reading& left, const Reading& right);

/// Assesses how an operation went in which a call had failed.
class Checker {
public:
    /// `flawless` is how the operation goes when nothing fails, along its route; both must outlive this object.
    Checker(std::int32_t question, Operation operation, const Outcome& flawless, std::span<const Call> route)
        : question_(question), operation_(operation), flawless_(flawless), route_(route) {}

    /// `position` is that of the call that failed, from 0.
    [[nodiscard]] Assessment assess(const Outcome& outcome, std::size_t position, const Fault& fault) const;

private:
    [[nodiscard]] bool isAnsweredBy(const Expected& expected, const Outcome& outcome) const;
    [[nodiscard]] bool mayEndPowerPoint(std::size_t position, const Fault& fault) const;

    std::int32_t question_;
    Operation operation_;
    const Outcome& flawless_;
    std::span<const Call> route_;
};

} // namespace trials::torture
