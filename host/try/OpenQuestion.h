#pragma once

#include "host/reason/Explainer.h"
#include "host/run/Exercise.h"
#include "host/run/Guard.h"
#include "host/run/Witnesses.h"

namespace host {

/// A question prepared in a world of its own, and what a learner has done in it since.
class OpenQuestion {
public:
    /// Stages the question of a file and prepares it. `file` and `course` must outlive this object. Raises what the
    /// module raises.
    OpenQuestion(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld);

    /// Moves from now on are ended, and raise, where they turn for longer than this.
    void limit(std::chrono::seconds patience) noexcept { exercise_.limit(patience); }
    /// Performs a move and remembers it. Raises language::Failure where it falls short; it is not remembered then.
    void perform(language::Statement move);
    /// Raises language::Failure where reading the value raises.
    [[nodiscard]] automation::Value evaluate(const language::Expression& expression) {
        return exercise_.evaluate(expression);
    }
    /// One TestePoint, remembered as the check that it passes.
    [[nodiscard]] Reading check();

    /// The last move as it was stated, of those that were made.
    [[nodiscard]] const std::u16string& lastMove() const;
    /// How many moves were made, and how often was checked.
    [[nodiscard]] std::size_t moves() const;
    [[nodiscard]] std::size_t checks() const noexcept { return checks_; }
    /// True where a scenario of the statements says what comes of its moves.
    [[nodiscard]] bool expectsSomething() const;
    /// The statements of a scenario in which the same happens.
    [[nodiscard]] std::vector<std::u16string> statements() const;
    /// The moves without the checks, to be made once more; none are left here.
    [[nodiscard]] std::vector<language::Statement> takeMoves();
    /// The moves before the last one and the checks among them, in the same way.
    [[nodiscard]] std::vector<language::Statement> takeAllBeforeLastMove();

    [[nodiscard]] World& world() noexcept { return *world_; }
    /// The content of a copy of the active presentation as it stands. Raises what PowerPoint raises.
    [[nodiscard]] Bytes presentation();

    /// Closes the question, and says what is not as it was before it, in plain words.
    [[nodiscard]] std::vector<std::string> close();

private:
    struct Step {
        language::Statement statement;
        bool isMove = false; ///< else it is of a check
    };

    /// Keeps what a check expects, as far as it can be read.
    void remember(language::Statement expectation);

    reason::Explainer explainer_;
    WorldPtr world_;
    Guard guard_;
    Witnesses witnesses_;
    Exercise exercise_;
    std::vector<Step> steps_;
    std::size_t checks_ = 0;
};

} // namespace host
