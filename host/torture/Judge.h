#pragma once

#include "host/torture/Ordeal.h"

namespace host::torture {

/// A call that left the module when nothing failed.
struct Call {
    automation::Border border = automation::Border::Automation;
    std::u16string text;      ///< as a macro would state it
    bool isOfPrepare = false; ///< made by the question's Prepare
    bool isOfLayout = false;  ///< reads how the command bars stand
};

/// How the host came to know of a failed call.
enum class Answer : std::uint8_t {
    Reported, ///< an error with class and service
    Registry, ///< the error that names a registry key
    Straight, ///< the failed call's own error
    Code,     ///< a general error of TestePoint
    Letter,   ///< another letter of TestePoint
    Silence,  ///< nothing, and the same verdict
    Wrong,    ///< an error that nothing prescribes
};
inline constexpr std::size_t answers = 7;

/// The name of an answer, for a line of totals.
[[nodiscard]] std::string_view nameOf(Answer answer) noexcept;

/// What may come of a failed call.
class Judge {
public:
    /// `flawless` is how the operation goes when nothing fails; it must outlive this object.
    Judge(std::int32_t question, Operation operation, const Aftermath& flawless)
        : question_(question), operation_(operation), flawless_(flawless) {}

    [[nodiscard]] Answer answerOf(const Aftermath& aftermath, const Fault& fault) const;
    /// What is wrong with how an operation went in which a call had failed; empty where all is as it must be.
    [[nodiscard]] std::vector<std::string> findings(const Aftermath& aftermath, const Call& call,
                                                    const Fault& fault) const;

private:
    [[nodiscard]] bool mayAnswer(Answer answer, const Aftermath& aftermath, const Call& call, const Fault& fault) const;
    [[nodiscard]] bool isReport(const automation::Error& error) const;
    [[nodiscard]] bool isReportOfPrepare(const automation::Error& error, const Fault& fault) const;
    [[nodiscard]] std::u16string className() const;

    std::int32_t question_;
    Operation operation_;
    const Aftermath& flawless_;
};

} // namespace host::torture
