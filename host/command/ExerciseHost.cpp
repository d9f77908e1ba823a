#include "host/command/ExerciseHost.h"

#include <array>

namespace host {

namespace {

constexpr const char* purpose = "Runs the exercises of a PowerPoint course: stages a question, makes a learner's moves "
                                "and asks the module for its verdict.";

constexpr const char* examples = R"(Examples:
  exercise-host run                      the whole road of question 306
  exercise-host run 307 --json           the same of 307, as one JSON object
  exercise-host run 306 --scenario "one occurrence forgotten" --trace
  exercise-host try 306                  a conversation: your moves, the verdict, saved as a scenario
  exercise-host play 306                 a page in the browser: the same with mouse and keyboard
  exercise-host verify                   all scenarios of all questions
  exercise-host verify 306 307
  exercise-host verify --file mine.scn   a scenario file of your own
  exercise-host verify --report F.html   a page of all scenarios, with pictures of the slides
  exercise-host run 315 --picture DIR    the slide before and after, as SVG
  exercise-host run 306 --course DIR     on the course's own files; so do try, verify, recheck
  exercise-host deliver 311 DIR          presentation and files for question 311, to start from
  exercise-host recheck Méthodologie.ppt --question 306
  exercise-host conform                  what the verdicts rest on: does PowerPoint keep it?
  exercise-host list                     the questions and their scenarios

Exit codes: 0 good, 1 a scenario fell short, 2 wrong usage or a wrong line in a
scenario file, 3 a scenario hung, 4 the computer had no room on its disk or no
folder for temporary files.)";

constexpr std::array commands{
    Command{"run", "Tell the whole road of one question, and what the host reads last", addRun, true},
    Command{"try", "Talk: state a learner's moves, see values, ask for the verdict", addTry, true},
    Command{"play", "Open a page on which you do with the mouse what a learner does in PowerPoint", addPlay, false},
    Command{"verify", "Run scenarios and print what falls short", addVerify, true},
    Command{"conform", "Ask PowerPoint whether it keeps what the verdicts rest on", addConform, true},
    Command{"recheck", "Judge a saved working presentation, without a live PowerPoint", addRecheck, false},
    Command{"deliver", "Write what the course delivers for a question, to start from", addDeliver, false},
    Command{"list", "List questions and scenarios", addList, false},
};

constexpr Program itself{"exercise-host", purpose, examples, commands};

} // namespace

const Program& exerciseHost() noexcept {
    return itself;
}

} // namespace host
