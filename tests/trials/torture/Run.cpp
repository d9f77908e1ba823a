#include "tests/trials/torture/Run.h"

#include "automation/Text.h"
#include "host/run/FirstMoves.h"
#include "tests/trials/torture/ErrorOf.h"
#include "tests/trials/torture/LearnerState.h"

namespace trials::torture {

namespace {

void comparePresentations(const LearnerState& before, const LearnerState& after, std::vector<std::string>& findings) {
    for (const OpenPresentation& open : before.presentations) {
        if (std::find(after.presentations.begin(), after.presentations.end(), open) == after.presentations.end()) {
            findings.push_back("the learner's presentation " + automation::toUtf8(open.name) + " is closed or changed");
        }
    }
    if (after.presentations.size() > before.presentations.size()) {
        findings.emplace_back("a presentation is left open");
    }
}

} // namespace

Outcome Run::run(Operation operation, Tampering& tampering, bool foldersStayWritable) const {
    const std::size_t aliveBefore = automation::Object::alive();
    Outcome outcome;
    {
        const WorldPtr world = makeWorld_(tampering.observer());
        outcome = runIn(*world, operation, tampering, foldersStayWritable);
    }
    if (const std::size_t aliveAfter = automation::Object::alive(); aliveAfter != aliveBefore) {
        outcome.findings.push_back(std::to_string(aliveAfter - aliveBefore) + " automation objects left alive");
    }
    return outcome;
}

Outcome Run::runIn(World& world, Operation operation, Tampering& tampering, bool foldersStayWritable) const {
    settleIn(world);
    const LearnerState before(world);
    const std::int32_t windowBefore = world.powerPoint().window();
    Witness nobody;
    TrainingHost host(world, course_, file_.question, nobody);
    if (operation.arrival == Operation::Arrival::Brought) {
        host.application = world.powerPoint().application();
        host.window = windowBefore;
    } else {
        world.powerPoint().close();
    }

    Outcome outcome;
    const auto begin = [&] { host.initQuestion(file_.question, world.hostFolder()); };
    const auto perform = [&](HostCall call, const auto& step) {
        if (call != operation.call) {
            static_cast<void>(errorOf(step));
            return;
        }
        tampering.begin(world);
        outcome.error = errorOf(step);
        outcome.calls = tampering.calls(world);
        outcome.isStruck = tampering.hasStruck(world);
    };
    if (operation.isHeld) {
        begin();
    }
    perform(HostCall::InitQuestion, begin);
    if (operation.call == HostCall::TestePoint) {
        performFirstMoves(file_, world, host);
        perform(HostCall::TestePoint, [&] {
            outcome.reading = host.check();
            if (outcome.reading->error) {
                throw automation::Error(*outcome.reading->error);
            }
        });
    }
    if (operation.call != HostCall::Quitter) {
        perform(HostCall::Fermer, [&] { host.fermer(); });
    }
    perform(HostCall::Quitter, [&] { host.quitter(); });
    tampering.end(world);

    if (foldersStayWritable && folderSettings::in(world.registry()) != before.folders) {
        outcome.findings.emplace_back("the learner's folders are not restored when the module is left");
    }
    const bool brought = operation.arrival == Operation::Arrival::Brought;
    outcome.powerPointEnded = brought && world.powerPoint().window() != windowBefore;
    if (const auto error = errorOf([&] {
            begin();
            host.fermer();
            host.quitter();
        })) {
        outcome.findings.push_back("the fresh start raises " + inWords(*error));
    }
    world.powerPoint().start();
    const LearnerState after(world);
    if (after.folders != before.folders) {
        outcome.findings.emplace_back("the learner's folders are not restored after a fresh start");
    }
    outcome.bars = barsChanged(before, after);
    if (brought && !outcome.powerPointEnded) {
        comparePresentations(before, after, outcome.presentations);
    }
    for (const std::string& open : world.leftOpen()) {
        outcome.findings.push_back(open);
    }
    host.application = nullptr;
    return outcome;
}

} // namespace trials::torture
