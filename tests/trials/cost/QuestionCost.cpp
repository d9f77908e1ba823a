#include "tests/trials/cost/QuestionCost.h"

#include "host/reason/Explainer.h"
#include "host/run/FirstMoves.h"
#include "tests/trials/StandIn.h"
#include "tests/trials/trace/TraceLog.h"

#include <ctime>

namespace trials::cost {

namespace {

/// What has been counted up to now and what time it is; the lines are those since it was asked last.
using Meter = std::function<OperationCost()>;

/// Processor time of this process: what else the machine has to do does not count.
Milliseconds processorTime() {
    return Milliseconds(1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC);
}

OperationCost timed() {
    return {.time = processorTime()};
}

Milliseconds clockTime() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

/// One run of a question in a world of its own.
class MeasuredRun {
public:
    MeasuredRun(const language::ScenarioFile& file, const Course& course, World& world, Meter meter,
                Witness* witness = nullptr)
        : meter_(std::move(meter)) {
        const auto work = [&](TrainingHost& host) {
            cost.initQuestion = measure([&] { host.initQuestion(file.question, world.hostFolder()); });
            performFirstMoves(file, world, host);
            cost.testePoint = measure([&] { cost.reading = host.check(); });
            cost.fermer = measure([&] { host.fermer(); });
        };
        withHost(file, course, world, work, witness);
    }

    QuestionCost cost;

private:
    template <typename Step> OperationCost measure(const Step& step) {
        const OperationCost before = meter_();
        step();
        OperationCost taken = meter_();
        taken.calls -= before.calls;
        taken.automationCalls -= before.automationCalls;
        taken.lookUps -= before.lookUps;
        taken.time -= before.time;
        return taken;
    }

    Meter meter_;
};

QuestionCost observedCostOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld) {
    const auto log = std::make_shared<trace::TraceLog>();
    const Meter meter = [&] { return OperationCost{log->calls, log->automationCalls, 0, {}, log->takeLines(), {}}; };
    QuestionCost cost = MeasuredRun(file, course, *makeWorld(log), meter).cost;
    cost.names = log->names;
    return cost;
}

} // namespace

void withHost(const language::ScenarioFile& file, const Course& course, World& world,
              const std::function<void(TrainingHost&)>& work, Witness* witness) {
    Witness nobody;
    world.powerPoint().start();
    TrainingHost host(world, course, file.question, witness == nullptr ? nobody : *witness);
    host.application = world.powerPoint().application();
    host.window = world.powerPoint().window();
    work(host);
    host.quitter();
}

PrescribedCalls::PrescribedCalls(std::int32_t question, HostCall operation)
    : trace(trace::expectedTrace(question, {operation, trace::Operation::Arrival::Fresh})) {
    for (const trace::Line& line : trace) {
        const std::size_t ofLine = trace::callsIn(line.text);
        (trace::keepsBars(line.phase) ? keeping : calls) += ofLine;
        prepare += line.phase == trace::Phase::Preparing ? ofLine : 0;
    }
}

QuestionCost unobservedCostOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld) {
    return MeasuredRun(file, course, *makeWorld(nullptr), timed).cost;
}

QuestionCost explainedCostOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld) {
    reason::Explainer explainer(file.contract);
    return MeasuredRun(file, course, *makeWorld(explainer.observer()), timed, &explainer).cost;
}

QuestionCost costOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld, int runs) {
    QuestionCost cost = observedCostOf(file, course, makeWorld);
    for (int i = 0; i < runs; ++i) {
        const QuestionCost unobserved = unobservedCostOf(file, course, makeWorld);
        for (const auto operation : {&QuestionCost::initQuestion, &QuestionCost::testePoint, &QuestionCost::fermer}) {
            Milliseconds& shortest = (cost.*operation).time;
            const Milliseconds time = (unobserved.*operation).time;
            shortest = i == 0 ? time : std::min(shortest, time);
        }
    }
    return cost;
}

std::vector<trace::RecordedCall> callsOfCheck(const language::ScenarioFile& file, const Course& course,
                                              const WorldMaker& makeWorld) {
    const auto record = std::make_shared<trace::CallRecord>();
    const Meter meter = [&] { return OperationCost{.made = std::exchange(record->calls, {})}; };
    return MeasuredRun(file, course, *makeWorld(record), meter).cost.testePoint.made;
}

QuestionCost remoteCostOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeRemoteWorld) {
    const WorldPtr world = makeRemoteWorld(nullptr);
    const Meter meter = [] {
        const std::size_t calls = callsOfStandIn();
        const auto lookUps = static_cast<std::size_t>(remoteCallsOf(standIn()).lookUps);
        return OperationCost{calls, calls, lookUps, clockTime(), {}, {}};
    };
    return MeasuredRun(file, course, *world, meter).cost;
}

} // namespace trials::cost
