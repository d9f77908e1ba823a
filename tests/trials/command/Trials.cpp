#include "tests/trials/command/Trials.h"

#include "tests/trials/command/Commands.h"

#include <array>

namespace trials {

namespace {

using host::Command;

constexpr const char* purpose =
    "Tries the module harder than scenarios do: with every call and every allocation failing, with "
    "learners at random, and by what it costs.";

constexpr const char* examples = R"(  trials torture 306           every call of question 306 made to fail in every way
  trials memory 306            every allocation of its operations made to fail
  trials pairs 306             a call or allocation made to fail, and another thing later in the operation
  trials learners 306          random learners, judged by the module and by a second judge
  trials days                  days of all questions, with faults, and hosts and learners at random
  trials cost                  what the questions cost in calls and time)";

constexpr std::array commands{
    Command{"torture", "Make every call that leaves the module fail, and see that nothing is lost and no verdict wrong",
            addTorture, true},
    Command{"memory", "Make every allocation fail, and see the same", addMemory, false},
    Command{"pairs", "Make two things of different kinds fail in one operation, and see the same", addPairs, false},
    Command{"learners", "Let learners work at random, and judge them a second time", addLearners, false},
    Command{"days", "Have days of lessons go wrong in every way, and see that all is as found in the end", addDays,
            true},
    Command{"cost", "Measure calls, time and memory", addCost, true},
    Command{"histories", "Have presentations of random histories read by another program", addHistories, false},
    Command{"decks", "Compare what PowerPoint sees in a folder's presentations with another program", addDecks, false},
};

constexpr host::Program trials{"trials", purpose, examples, commands};

} // namespace

const host::Program& program() noexcept {
    return trials;
}

} // namespace trials
