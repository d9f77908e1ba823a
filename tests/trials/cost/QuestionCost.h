#pragma once

#include "host/run/TrainingHost.h"
#include "tests/trials/Host.h"
#include "tests/trials/cost/CallTally.h"
#include "tests/trials/cost/Prescribed.h"

#include <chrono>
#include <functional>

namespace trials::cost {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// What one operation of the host costs.
struct OperationCost {
    std::size_t calls = 0;           ///< that leave the module
    std::size_t automationCalls = 0; ///< of them, those to PowerPoint
    Milliseconds time{};
};

/// What a question costs, from its beginning to its closing.
struct QuestionCost {
    OperationCost initQuestion;
    OperationCost testePoint;
    OperationCost fermer;
    std::size_t prepareCalls = 0;   ///< of InitQuestion's calls
    std::set<std::u16string> names; ///< of PowerPoint's members called
    PrescribedCalls prescribed{};   ///< where calls are observed
    KeepingCalls keeping{};         ///< beside them
    std::size_t lookUps = 0;        ///< of names, by a PowerPoint in a process of its own
    Reading reading;                ///< after the first moves of the scenario file

    [[nodiscard]] std::size_t automationCalls() const noexcept {
        return initQuestion.automationCalls + testePoint.automationCalls + fermer.automationCalls;
    }
    /// True where InitQuestion, Prepare, TestePoint and Fermer make the calls prescribed, and those that keep the bars.
    [[nodiscard]] bool isAsPrescribed() const noexcept;
    [[nodiscard]] Milliseconds time() const noexcept { return initQuestion.time + testePoint.time + fermer.time; }
};

/// How far a question has come.
enum class Moment : std::uint8_t { Prepared, Worked, Checked };
using Watching = std::function<void(World&, Moment)>;

/// Counts the calls of a question whose learner performs the first moves of its file, and takes the shortest processor
/// time of several runs that nobody observes. `course` holds the file's files. Raises what the module raises.
[[nodiscard]] QuestionCost costOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld,
                                  int runs);

/// The same, run once with a PowerPoint in a process of its own, which counts its calls and the names looked up in
/// them; the time is the clock's. `watch` is called as the question goes on.
[[nodiscard]] QuestionCost remoteCostOf(const language::ScenarioFile& file, const Course& course,
                                        const WorldMaker& makeRemoteWorld, const Watching& watch = nullptr);

} // namespace trials::cost
