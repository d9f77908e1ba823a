#pragma once

#include "host/language/Ast.h"
#include "host/picture/Exposure.h"

#include <chrono>

/// What became of scenarios, and reports of it.
namespace host::report {

/// A statement of a scenario that was performed.
struct Move {
    std::size_t line = 0;
    std::string text;
};

/// The moves up to a check, and what came of it; behind the last check there may be moves without one.
struct Attempt {
    std::vector<Move> moves;
    std::optional<Expectation> expected;
    std::optional<Reading> reading;
    std::vector<BeforeAfter> slides; ///< that changed, or the one shown
};

/// How one scenario went.
struct Result {
    std::string title;
    std::size_t line = 0; ///< of its title in the scenario file
    std::vector<Attempt> attempts;
    std::vector<language::Remark> failures;
    std::size_t calls = 0;            ///< that left the module; 0 where they cannot be counted
    std::chrono::nanoseconds time{0}; ///< spent in the module

    [[nodiscard]] bool passed() const noexcept { return failures.empty(); }
};

/// The scenarios of one file.
struct FileResult {
    std::string file;
    std::int32_t question = 0;
    std::string subject;                     ///< what the file says of itself at its head; may be empty
    std::vector<language::Meaning> meanings; ///< of the verdicts that the file declares
    std::vector<Result> results;
    bool isSample = false;                      ///< not all of its scenarios were run
    std::vector<language::Remark> wrongLines{}; ///< for which none was run

    [[nodiscard]] std::size_t passed() const noexcept;
    [[nodiscard]] std::size_t failed() const noexcept { return results.size() - passed(); }
    /// Spent in the module by all scenarios.
    [[nodiscard]] std::chrono::nanoseconds time() const noexcept;
    /// The name of the file without folder and extension: "0315", "session".
    [[nodiscard]] std::string name() const;
    /// True for the file that a question is named after; others are about something else.
    [[nodiscard]] bool isQuestion() const { return name() == "0" + std::to_string(question); }
};

using Report = std::vector<FileResult>;

/// Scenarios that passed, those that failed, calls and time of a whole report.
struct Totals {
    explicit Totals(const Report& report) noexcept;

    std::size_t passed = 0;
    std::size_t failed = 0;
    std::size_t calls = 0;
    std::chrono::nanoseconds time{0};
};

/// A time in milliseconds.
[[nodiscard]] double milliseconds(std::chrono::nanoseconds time) noexcept;

} // namespace host::report
