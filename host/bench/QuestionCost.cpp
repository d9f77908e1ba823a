#include "host/bench/QuestionCost.h"

#include "host/run/FirstMoves.h"

#include <ctime>

namespace host::bench {

namespace {

/// Processor time of this process: what else the machine has to do does not count.
Milliseconds processorTime() {
    return Milliseconds(1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC);
}

/// One run of a question in a world of its own.
class Run {
public:
    Run(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld,
        std::shared_ptr<CallTally> tally)
        : tally_(std::move(tally)), world_(makeWorld(tally_)) {
        world_->startPowerPoint();
        TrainingHost host(*world_, course, file.question, nobody_);
        host.application = world_->application();
        host.window = world_->mainWindow();
        cost.initQuestion = measure([&] { host.initQuestion(file.question, world_->hostFolder()); });
        performFirstMoves(file, *world_, host);
        cost.testePoint = measure([&] { cost.reading = host.check(); });
        cost.fermer = measure([&] { host.fermer(); });
        if (tally_) {
            cost.prepareCalls = tally_->prepareCalls;
            cost.automationCalls = tally_->automationCalls;
            cost.names = tally_->names;
        }
        host.quitter();
    }

    QuestionCost cost;

private:
    template <typename Step> OperationCost measure(const Step& step) {
        const std::size_t callsBefore = tally_ ? tally_->calls : 0;
        const Milliseconds begun = processorTime();
        step();
        const Milliseconds time = processorTime() - begun;
        return {tally_ ? tally_->calls - callsBefore : 0, time};
    }

    std::shared_ptr<CallTally> tally_;
    WorldPtr world_;
    Witness nobody_;
};

} // namespace

QuestionCost costOf(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld, int runs) {
    QuestionCost cost = Run(file, course, makeWorld, std::make_shared<CallTally>()).cost;
    for (int i = 0; i < runs; ++i) {
        const QuestionCost unobserved = Run(file, course, makeWorld, nullptr).cost;
        for (const auto operation : {&QuestionCost::initQuestion, &QuestionCost::testePoint, &QuestionCost::fermer}) {
            Milliseconds& shortest = (cost.*operation).time;
            const Milliseconds time = (unobserved.*operation).time;
            shortest = i == 0 ? time : std::min(shortest, time);
        }
    }
    return cost;
}

} // namespace host::bench
