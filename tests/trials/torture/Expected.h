#pragma once

#include "tests/trials/torture/Route.h"
#include "tests/trials/torture/Run.h"

#include <span>

namespace trials::torture {

/// How the host came to know of a failed call.
enum class Answer : std::uint8_t {
    Reported, ///< an error with class and service
    Straight, ///< the failed call's own error
    Code,     ///< a general error of TestePoint
    Letter,   ///< another letter of TestePoint
    Silence,  ///< nothing, and the same verdict
    Wrong,    ///< anything but what is prescribed
};
inline constexpr std::size_t answers = 6;

/// The name of an answer, for a line of totals.
[[nodiscard]] std::string_view nameOf(Answer answer) noexcept;

/// What the host must get where a call fails.
struct Expected {
    Answer answer = Answer::Silence;
    /// The error raised, for the first two answers. What a PowerPoint says that is dying is not known beforehand: any
    /// number will do that says so, and the source need but begin so.
    std::optional<automation::Error> error{};
    bool isOfDeath = false;
    std::u16string code{}; ///< of a general error, or the letter

    [[nodiscard]] bool admits(const automation::Error& raised) const;
    /// In words: `reported with class and service, error 5 ...`.
    [[nodiscard]] std::string display() const;
};

/// What the host must get where a fault strikes the call at a position (from 0) of an operation of a question. What
/// fails in silence lets a fault that lasts strike again, at a call further on.
[[nodiscard]] Expected expectedFor(std::int32_t question, Operation operation, std::span<const Call> route,
                                   std::size_t position, const Fault& fault);

} // namespace trials::torture
