#pragma once

#include "host/run/Exercise.h"

namespace host {

/// Runs the scenarios of one file, each in a fresh world, from the delivery of its files to what must be left when all
/// is over: the learner's folders and presentations as they were, no working file, no registry key open, no automation
/// object alive.
class Runner {
public:
    /// Builds the course's files. Raises language::Failure where one of its statements raises. `file` must outlive this
    /// object.
    Runner(const language::ScenarioFile& file, WorldMaker makeWorld);

    /// Makes the witness of a scenario, which sees its world.
    using WitnessMaker = std::function<std::unique_ptr<Witness>(World&)>;

    /// What fell short, each with its place; empty where the scenario passed. The first statement that falls short ends
    /// the scenario.
    [[nodiscard]] std::vector<language::Remark> run(const language::Scenario& scenario,
                                                    const WitnessMaker& makeWitness = nullptr,
                                                    const automation::ObserverPtr& observer = nullptr) const;

private:
    [[nodiscard]] std::vector<language::Remark> runIn(World& world, const language::Scenario& scenario,
                                                      const WitnessMaker& makeWitness) const;

    const language::ScenarioFile& file_;
    WorldMaker makeWorld_;
    Course course_;
};

} // namespace host
