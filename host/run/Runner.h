#pragma once

#include "host/run/Exercise.h"

namespace host {

/// How a scenario went.
struct Outcome {
    std::vector<language::Remark> failures; ///< what fell short, each with its place; empty where it passed
    Reading lastReading;                    ///< what the host read after the last check
};

/// Runs the scenarios of one file, each in a fresh world, from the delivery of its files to what must be left when all
/// is over: the learner's folders and presentations as they were, no working file, no registry key open, no automation
/// object alive.
class Runner {
public:
    /// Builds the course's files; where that fails, every scenario fails with the place in the course. `file` must
    /// outlive this object.
    Runner(const language::ScenarioFile& file, WorldMaker makeWorld);
    /// Takes the course's own files.
    Runner(const language::ScenarioFile& file, Course course, WorldMaker makeWorld)
        : file_(file), makeWorld_(std::move(makeWorld)), course_(std::move(course)) {}

    /// The course's files; null where they could not be built.
    [[nodiscard]] const Course* course() const noexcept { return course_ ? &*course_ : nullptr; }

    /// Makes the witness of a scenario, which sees its world.
    using WitnessMaker = std::function<std::unique_ptr<Witness>(World&)>;

    /// The first statement that falls short ends the scenario.
    [[nodiscard]] Outcome run(const language::Scenario& scenario, const WitnessMaker& makeWitness = nullptr,
                              const automation::ObserverPtr& observer = nullptr) const;

private:
    [[nodiscard]] Outcome runIn(World& world, const language::Scenario& scenario,
                                const WitnessMaker& makeWitness) const;

    const language::ScenarioFile& file_;
    WorldMaker makeWorld_;
    std::optional<Course> course_;
    std::vector<language::Remark> courseFailures_;
};

} // namespace host
