#pragma once

#include "host/try/LineReader.h"
#include "host/try/OpenQuestion.h"

#include <iosfwd>

namespace host {

/// A course author tries a question: statements of the scenario language are the learner's moves, `?` prints values,
/// and a few verbs judge, begin anew and save.
class Conversation {
public:
    /// `file`, `lines` and `out` must outlive this object. `inputs` are the files that the question comes from.
    Conversation(const language::ScenarioFile& file, Course course, WorldMaker makeWorld, LineReader& lines,
                 std::ostream& out, std::vector<std::filesystem::path> inputs = {});

    /// Prepares the question, and takes lines until the author leaves. False where the question could not be prepared,
    /// or could not be closed as it should be.
    [[nodiscard]] bool run();

private:
    /// What may stand behind a verb.
    enum class Rest : std::uint8_t { Nothing, Something, Anything };

    struct Verb {
        std::string_view name;
        std::string_view rest; ///< of its example in the help
        std::string_view what;
        void (Conversation::*act)(const std::string& rest); ///< null for what is no verb: statements, `?`
        Rest takes = Rest::Nothing;
    };
    static const std::vector<Verb>& verbs();
    /// Null for a word that is none; in any case, as all words are.
    static const Verb* verbOf(const std::string& word);

    /// Prepares the question in the place of what is being tried. Where that raises, the conversation is over.
    void begin();
    bool close();
    void obey(const std::string& line);
    void perform(const std::string& line);
    /// Where a name is unknown that is nearly a verb.
    void suggestVerb(const std::string& word, const language::Failure& failure);
    void print(const std::string& expression);
    void judge(const Expectation* expected);

    void check(const std::string& expected);
    void undo(const std::string&);
    void reset(const std::string&);
    void again(const std::string&);
    void show(const std::string&);
    void members(const std::string& expression);
    void save(const std::string& rest) { saveBy("save", rest); }
    void saveOver(const std::string& rest) { saveBy("save!", rest); }
    void saveBy(const std::string& verb, const std::string& rest);
    void append(const std::string& rest);
    void exportTo(const std::string& file) { exportBy("export", file); }
    void exportOver(const std::string& file) { exportBy("export!", file); }
    void exportBy(const std::string& verb, const std::string& file);
    void picture(const std::string& file) { pictureBy("picture", file); }
    void pictureOver(const std::string& file) { pictureBy("picture!", file); }
    void pictureBy(const std::string& verb, const std::string& file);
    void help(const std::string&);
    void quit(const std::string&) { leave(); }

    /// Prepares the question anew and makes these statements once more; says which could not be made.
    void remake(std::vector<language::Statement> steps);
    /// Raises std::runtime_error where a scenario of what was done would pass whatever happens.
    void requireExpectation() const;
    /// What has been written holds all that was done.
    void saved(const std::u16string& title, const std::string& file);
    /// Ends the conversation; the first time not, where moves are not saved and somebody can be told so.
    void leave();

    [[nodiscard]] std::vector<std::string> completions(const std::string& line);

    const language::ScenarioFile& file_;
    WorldMaker makeWorld_;
    LineReader& lines_;
    std::ostream& out_;
    Course course_;
    std::optional<OpenQuestion> open_;
    std::vector<std::filesystem::path> inputs_;
    std::vector<std::u16string> saved_; ///< the statements that have been written last
    bool isWarned_ = false;             ///< that moves are not saved
    bool isOver_ = false;
};

} // namespace host
