#include "host/command/ExerciseHost.h"

#include <array>

namespace host {

namespace {

constexpr const char* purpose = "Runs the exercises of a PowerPoint course: stages a question, makes a learner's\n"
                                "moves and asks the module for its verdict.";

constexpr const char* examples = R"(  exercise-host run                    the whole road of question 306
  exercise-host try 306                a conversation: your moves, the verdict
  exercise-host play 306               the same in the browser, with the mouse
  exercise-host verify                 all scenarios of all questions
  exercise-host verify mine.scn        those of a file of your own
  exercise-host deliver 311 DIR        presentation and files, to start from
  exercise-host recheck DIR --question 306
  exercise-host conform                is PowerPoint what verdicts rest on?
  exercise-host list                   the questions and their scenarios
  exercise-host COMMAND --help         what a command takes)";

constexpr const char* runExamples = R"(  exercise-host run 306
  exercise-host run mine.scn --scenario "one occurrence forgotten" --trace
  exercise-host run 307 --json          all of it as one JSON object
  exercise-host run 315 --picture DIR   the slide before and after, as SVG
  exercise-host run 306 --course DIR    on the course's own files)";

constexpr const char* tryExamples = R"(  exercise-host try 306
  exercise-host try mine.scn            on what a file of your own delivers
  exercise-host try 306 --course DIR    on the course's own files)";

constexpr const char* playExamples = R"(  exercise-host play 306
  exercise-host play mine.scn           on what a file of your own delivers
  exercise-host play 306 --course DIR   on the course's own files)";

constexpr const char* verifyExamples = R"(  exercise-host verify                  all scenarios of all questions
  exercise-host verify 306 mine.scn
  exercise-host verify 306 --scenario "one occurrence forgotten"
  exercise-host verify mine.scn --stop --watch
  exercise-host verify --report F.html --junit F.xml)";

constexpr const char* conformExamples = R"(  exercise-host conform                 all of PowerPoint's classes
  exercise-host conform Shape --powerpoint
  exercise-host conform --json          every expectation, for a program)";

constexpr const char* recheckExamples = R"(  exercise-host recheck Méthodologie.ppt --question 306
  exercise-host recheck DIR --question 306    all presentations below a folder
  exercise-host recheck DIR --question 306 --json)";

constexpr const char* deliverExamples = R"(  exercise-host deliver 311 DIR
  exercise-host deliver mine.scn DIR    what a file of your own delivers)";

constexpr const char* listExamples = R"(  exercise-host list
  exercise-host list 306 mine.scn)";

constexpr std::array commands{
    Command{"run", "Tell the whole road of one question", addRun, true, runExamples},
    Command{"try", "Talk: state a learner's moves, ask for the verdict", addTry, true, tryExamples},
    Command{"play", "Open a page on which you move as a learner does", addPlay, false, playExamples},
    Command{"verify", "Run scenarios and print what falls short", addVerify, true, verifyExamples},
    Command{"conform", "Ask PowerPoint whether it keeps what verdicts rest on", addConform, true, conformExamples},
    Command{"recheck", "Judge saved presentations, without a live PowerPoint", addRecheck, false, recheckExamples},
    Command{"deliver", "Write what the course delivers, to start from", addDeliver, false, deliverExamples},
    Command{"list", "List questions and scenarios", addList, false, listExamples},
};

constexpr Program itself{"exercise-host", purpose, examples, commands};

} // namespace

const Program& exerciseHost() noexcept {
    return itself;
}

} // namespace host
