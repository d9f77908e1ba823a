#pragma once

#include "host/bench/CallTally.h"
#include "host/run/TrainingHost.h"

#include <chrono>

namespace host::bench {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// What one operation of the host costs.
struct OperationCost {
    std::size_t calls = 0;
    Milliseconds time{};
};

/// What a question costs, from its beginning to its closing.
struct QuestionCost {
    OperationCost initQuestion;
    OperationCost testePoint;
    OperationCost fermer;
    std::size_t prepareCalls = 0;    ///< of InitQuestion's calls
    std::size_t automationCalls = 0; ///< of all
    std::set<std::u16string> names;  ///< of PowerPoint's members called
    Reading reading;                 ///< after the first moves of the scenario file
};

/// Counts the calls of a question whose learner performs the first moves of its file, and takes the shortest processor
/// time of several runs that nobody observes. `course` holds the file's files. Raises what the module raises.
[[nodiscard]] QuestionCost costOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld,
                                  int runs);

} // namespace host::bench
