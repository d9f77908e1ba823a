#include "tests/trials/cost/QuestionCost.h"

#include "automation/LateBound.h"
#include "host/run/FirstMoves.h"
#include "tests/trials/StandIn.h"

#include <ctime>

namespace trials::cost {

namespace {

/// What has been counted and what time it is.
struct Reckoning {
    std::size_t calls = 0;
    std::size_t automationCalls = 0;
    std::size_t lookUps = 0;
    Milliseconds time{};
};

using Meter = std::function<Reckoning()>;

/// Processor time of this process: what else the machine has to do does not count.
Milliseconds processorTime() {
    return Milliseconds(1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC);
}

Milliseconds clockTime() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

/// One run of a question in a world of its own.
class Run {
public:
    Run(const language::ScenarioFile& file, const Course& course, World& world, Meter meter,
        const Watching& watch = nullptr)
        : meter_(std::move(meter)) {
        Witness nobody;
        world.powerPoint().start();
        TrainingHost host(world, course, file.question, nobody);
        host.application = world.powerPoint().application();
        host.window = world.powerPoint().window();
        cost.initQuestion = measure([&] { host.initQuestion(file.question, world.hostFolder()); });
        const auto reach = [&](Moment moment) {
            if (watch) {
                watch(world, moment);
            }
        };
        reach(Moment::Prepared);
        performFirstMoves(file, world, host);
        reach(Moment::Worked);
        cost.testePoint = measure([&] { cost.reading = host.check(); });
        reach(Moment::Checked);
        cost.fermer = measure([&] { host.fermer(); });
        host.quitter();
    }

    QuestionCost cost;

private:
    template <typename Step> OperationCost measure(const Step& step) {
        const Reckoning before = meter_();
        step();
        const Reckoning after = meter_();
        cost.lookUps += after.lookUps - before.lookUps;
        return {after.calls - before.calls, after.automationCalls - before.automationCalls, after.time - before.time};
    }

    Meter meter_;
};

QuestionCost observedCostOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld) {
    const auto tally = std::make_shared<CallTally>();
    const Meter meter = [&] { return Reckoning{tally->calls, tally->automationCalls, 0, {}}; };
    std::optional<Surroundings> prepared;
    PrescribedCalls prescribed{};
    const Watching watch = [&](World& world, Moment moment) {
        if (moment == Moment::Prepared) {
            prepared.emplace(world, file.question);
        } else if (moment == Moment::Worked) {
            prescribed = prescribedCalls(file.question, *prepared, Surroundings(world, file.question).slides);
        }
    };
    QuestionCost cost = Run(file, course, *makeWorld(tally), meter, watch).cost;
    cost.prescribed = prescribed;
    cost.keeping = keepingCalls(prepared.value());
    cost.prepareCalls = tally->prepareCalls;
    cost.names = tally->names;
    return cost;
}

} // namespace

bool QuestionCost::isAsPrescribed() const noexcept {
    return initQuestion.calls == prescribed.initQuestion + keeping.initQuestion && prepareCalls == prescribed.prepare &&
           testePoint.calls == prescribed.testePoint && fermer.calls == prescribed.fermer + keeping.fermer;
}

QuestionCost costOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld, int runs) {
    QuestionCost cost = observedCostOf(file, course, makeWorld);
    const Meter timer = [] { return Reckoning{0, 0, 0, processorTime()}; };
    for (int i = 0; i < runs; ++i) {
        const QuestionCost unobserved = Run(file, course, *makeWorld(nullptr), timer).cost;
        for (const auto operation : {&QuestionCost::initQuestion, &QuestionCost::testePoint, &QuestionCost::fermer}) {
            Milliseconds& shortest = (cost.*operation).time;
            const Milliseconds time = (unobserved.*operation).time;
            shortest = i == 0 ? time : std::min(shortest, time);
        }
    }
    return cost;
}

QuestionCost remoteCostOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeRemoteWorld,
                          const Watching& watch) {
    const WorldPtr world = makeRemoteWorld(nullptr);
    const Meter meter = [] {
        const automation::LateBound standIn = trials::standIn();
        const auto counted = [&](std::u16string_view name) {
            return static_cast<std::size_t>(standIn.get(name).to<std::int32_t>());
        };
        const std::size_t calls = counted(u"Calls");
        return Reckoning{calls, calls, counted(u"LookUps"), clockTime()};
    };
    return Run(file, course, *world, meter, watch).cost;
}

} // namespace trials::cost
