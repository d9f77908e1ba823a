#pragma once

#include "host/run/TrainingHost.h"
#include "tests/trials/Host.h"
#include "tests/trials/trace/CallRecord.h"
#include "tests/trials/trace/Expected.h"

#include <chrono>
#include <functional>
#include <set>

namespace trials::cost {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// What one operation of the host costs.
struct OperationCost {
    std::size_t calls = 0;           ///< that leave the module
    std::size_t automationCalls = 0; ///< of them, those to PowerPoint
    std::size_t lookUps = 0;         ///< of names, by a PowerPoint in a process of its own
    Milliseconds time{};
    std::vector<std::string> lines{};        ///< of its trace, where calls are observed
    std::vector<trace::RecordedCall> made{}; ///< to PowerPoint, where they are recorded
};

/// Calls that an operation takes where each step is taken as it is described, and none beside: those of its expected
/// trace.
struct PrescribedCalls {
    PrescribedCalls(std::int32_t question, HostCall operation);

    std::vector<trace::Line> trace;
    std::size_t calls = 0;   ///< without those that keep the learner's bars
    std::size_t keeping = 0; ///< those
    std::size_t prepare = 0; ///< of the question's Prepare
};

/// What a question costs, from its beginning to its closing.
struct QuestionCost {
    OperationCost initQuestion;
    OperationCost testePoint;
    OperationCost fermer;
    std::set<std::u16string> names; ///< of PowerPoint's members called
    Reading reading;                ///< after the first moves of the scenario file

    [[nodiscard]] std::size_t automationCalls() const noexcept {
        return initQuestion.automationCalls + testePoint.automationCalls + fermer.automationCalls;
    }
    [[nodiscard]] std::size_t lookUps() const noexcept {
        return initQuestion.lookUps + testePoint.lookUps + fermer.lookUps;
    }
    [[nodiscard]] Milliseconds time() const noexcept { return initQuestion.time + testePoint.time + fermer.time; }
};

/// Starts PowerPoint in a world, has a host with its files and its PowerPoint do something, and leaves the module; a
/// witness may see it.
void withHost(const language::ScenarioFile& file, const Course& course, World& world,
              const std::function<void(TrainingHost&)>& work, Witness* witness = nullptr);

/// Counts the calls of a question whose learner performs the first moves of its file, and takes the shortest processor
/// time of several runs that nobody observes. `course` holds the file's files. Raises what the module raises.
[[nodiscard]] QuestionCost costOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld,
                                  int runs);

/// The same, run once, with the processor time alone.
[[nodiscard]] QuestionCost unobservedCostOf(const language::ScenarioFile& file, const Course& course,
                                            const WorldMaker& makeWorld);

/// The same, when the host says why it reads what it reads.
[[nodiscard]] QuestionCost explainedCostOf(const language::ScenarioFile& file, const Course& course,
                                           const WorldMaker& makeWorld);

/// The calls to PowerPoint that the check takes, after the first moves of the file.
[[nodiscard]] std::vector<trace::RecordedCall> callsOfCheck(const language::ScenarioFile& file, const Course& course,
                                                            const WorldMaker& makeWorld);

/// What the question costs, run once with a PowerPoint in a process of its own, which counts its calls and the names
/// looked up in them; the time is the clock's.
[[nodiscard]] QuestionCost remoteCostOf(const language::ScenarioFile& file, const Course& course,
                                        const WorldMaker& makeRemoteWorld);

} // namespace trials::cost
