#pragma once

#include "host/try/OpenQuestion.h"

#include <nlohmann/json.hpp>

namespace host {

/// A question of the course, ready to be played.
struct PlayedQuestion {
    language::ScenarioFile file;
    Course course;
    std::int32_t next = 0; ///< the question behind it; 0 where there is none
};

/// Finds a question by its number. Raises what reading its file raises.
using QuestionFinder = std::function<PlayedQuestion(std::int32_t question)>;

/// The exercise that lies on the desk: a question prepared, the gestures made since, and the verdict on them. What
/// cannot be done raises std::runtime_error, in words for the author; the exercise is as it was then.
class Desk {
public:
    /// Prepares a question. Raises automation::Error where the module does.
    Desk(PlayedQuestion question, QuestionFinder find, WorldMaker makeWorld);

    /// A gesture: statements that belong together. Those before one that fails stay made.
    void perform(const std::vector<std::string>& statements);
    /// A line that is typed: a statement, or `?` and an expression, whose value is the answer.
    [[nodiscard]] std::string say(const std::string& line);
    /// Asks for the verdict on all gestures, afresh each time.
    void check();
    /// Takes the last gesture back.
    void undo();
    /// The question as it was prepared.
    void reset();
    /// Goes to another question.
    void open(std::int32_t question);
    /// Appends gestures and verdict as a scenario to a file in the folder that the program was started in, and says so.
    [[nodiscard]] std::string save(const std::string& name, const std::string& title);

    /// `{"question": {…}, "statements": […], "verdict": {…} or null, "screen": {…}}`
    [[nodiscard]] nlohmann::json state();
    /// Closes the question, and says what is not as it was before it.
    [[nodiscard]] std::vector<std::string> close();

private:
    void prepare();
    [[nodiscard]] OpenQuestion& prepared();
    void replay(std::size_t gestures);
    void make(language::Statement statement);

    PlayedQuestion question_;
    QuestionFinder find_;
    WorldMaker makeWorld_;
    std::optional<OpenQuestion> open_;
    std::vector<std::size_t> gestures_; ///< how many statements each has
    nlohmann::json verdict_;            ///< null where gestures were made since
};

} // namespace host
