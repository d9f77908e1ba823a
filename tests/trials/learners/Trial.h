#pragma once

#include "host/run/Exercise.h"
#include "tests/trials/Host.h"
#include "tests/trials/learners/Examiner.h"

namespace trials::learners {

/// What a learner does, statement by statement; a check of the host is `check`, a new start `Host.InitQuestion`.
using Moves = std::vector<std::u16string>;

inline constexpr std::u16string_view checkMove = u"check";

/// What the host must read after a check, and what it reads.
struct Finding {
    Reading wanted; ///< an error has its number only
    Reading read;

    [[nodiscard]] bool isAgreed() const;
};

/// One learner before one question, in a world that is made for it; InitQuestion has been called.
class Trial {
public:
    /// Both must outlive this object. Raises what InitQuestion raises.
    Trial(std::int32_t question, const Course& course);

    [[nodiscard]] Scene scene() const { return Scene(*world_); }
    /// False where a statement is refused, or none.
    bool perform(const std::u16string& statement);
    [[nodiscard]] Finding check();
    /// Closes the question and leaves the module. Raises what the module raises.
    void finish() { exercise_.finish(); }

private:
    std::unique_ptr<EmbeddedWorld> world_ = makeEmbeddedWorld();
    Witness nobody_;
    Exercise exercise_;
    Examiner examiner_;
};

/// The findings of a learner's checks when the same moves are made again; nothing where a move is refused.
[[nodiscard]] std::optional<std::vector<Finding>> replay(std::int32_t question, const Course& course,
                                                         const Moves& moves);

/// A scenario file on the course of `file` with one scenario: what a learner has done, and what its checks must read.
[[nodiscard]] std::string scenarioText(const language::ScenarioFile& file, const Moves& moves,
                                       const std::vector<Finding>& findings, const std::string& title);

} // namespace trials::learners
