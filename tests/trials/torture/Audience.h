#pragma once

#include "tests/trials/torture/Checker.h"

namespace trials::torture {

/// What came of all that was made to fail.
struct Totals {
    std::size_t failed = 0;
    std::array<std::size_t, answers> outcomes{};
    std::size_t findings = 0;
};

/// Told of what is wrong, in words.
using Report = std::function<void(const std::string&)>;
/// Told where it has come to: the operation, the number of what fails in it, and how many there are.
using Progress = std::function<void(const std::string&, std::size_t, std::size_t)>;

/// Whoever is told how it goes with one question.
class Audience {
public:
    /// Adds to `totals`, which must outlive this object.
    Audience(std::int32_t question, Totals& totals, Report report, Progress progress)
        : question_("question " + std::to_string(question) + ", "), totals_(totals), report_(std::move(report)),
          progress_(std::move(progress)) {}

    void hasComeTo(const std::string& operation, std::size_t n, std::size_t all) const { progress_(operation, n, all); }
    void tell(const std::string& what, const std::vector<std::string>& findings) const {
        for (const std::string& finding : findings) {
            ++totals_.findings;
            report_(question_ + what + ": " + finding);
        }
    }
    /// Something has been made to fail, and that is what came of it.
    void judge(const std::string& what, const Assessment& assessment) const {
        ++totals_.failed;
        ++totals_.outcomes.at(static_cast<std::size_t>(assessment.answer));
        tell(what, assessment.findings);
    }

private:
    std::string question_;
    Totals& totals_;
    Report report_;
    Progress progress_;
};

} // namespace trials::torture
