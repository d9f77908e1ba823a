#include "host/run/Runner.h"

#include "host/run/Guard.h"
#include "host/run/Witnesses.h"
#include "host/world/MachineFault.h"
#include "host/world/TemporaryFolder.h"

namespace host {

namespace {

using language::Remark;

/// Runs a step; what it raises becomes a remark. True where it raised nothing.
template <typename Step> bool passes(language::Position place, std::vector<Remark>& remarks, const Step& step) {
    try {
        step();
        return true;
    } catch (const MachineFault&) {
        throw;
    } catch (const language::Failure& failure) {
        remarks.push_back(failure.remark);
    } catch (const automation::Error& error) {
        remarks.push_back({place, inWords(error)});
    } catch (const std::exception& error) {
        remarks.push_back({place, error.what()});
    }
    return false;
}

void performAll(Exercise& exercise, const language::Scenario& scenario) {
    if (!scenario.startsBeforeInitQuestion) {
        exercise.begin();
    }
    for (const language::Statement& statement : scenario.statements) {
        exercise.execute(statement);
    }
}

} // namespace

Runner::Runner(const language::ScenarioFile& file, WorldMaker makeWorld)
    : file_(file), makeWorld_(std::move(makeWorld)) {
    if (!passes({}, courseFailures_, [&] { course_.emplace(file, makeWorld_); })) {
        requireTemporaryFiles();
    }
}

Outcome Runner::run(const language::Scenario& scenario, const WitnessMaker& makeWitness,
                    const automation::ObserverPtr& observer) const {
    if (!course_) {
        return {courseFailures_, {}};
    }
    const std::size_t aliveBefore = automation::Object::alive();
    Outcome outcome;
    passes(scenario.place, outcome.failures, [&] { outcome = runIn(*makeWorld_(observer), scenario, makeWitness); });
    const std::size_t aliveAfter = automation::Object::alive();
    if (outcome.failures.empty() && aliveAfter != aliveBefore) {
        outcome.failures.push_back(
            {scenario.place, std::to_string(aliveAfter - aliveBefore) + " automation objects left alive"});
    }
    if (!outcome.failures.empty()) {
        requireTemporaryFiles();
    }
    return outcome;
}

Outcome Runner::runIn(World& world, const language::Scenario& scenario, const WitnessMaker& makeWitness) const {
    Guard guard(world);
    const std::unique_ptr<Witness> other = makeWitness ? makeWitness(world) : nullptr;
    Witnesses witnesses;
    witnesses.add(guard);
    if (other) {
        witnesses.add(*other);
    }
    std::vector<Remark> remarks;
    std::vector<Remark> closing;
    Exercise exercise(world, *course_, file_.question, witnesses);
    const bool isPerformed = passes(scenario.place, remarks, [&] { performAll(exercise, scenario); });
    passes(scenario.place, closing, [&] { exercise.finish(); });
    for (const std::vector<std::string>& findings : {guard.findings(), world.leftOpen()}) {
        for (const std::string& finding : findings) {
            closing.push_back({scenario.place, finding});
        }
    }
    // What is amiss behind a scenario broken off says nothing.
    return {isPerformed ? closing : remarks, exercise.lastReading()};
}

} // namespace host
