#include "tests/trials/torture/Ordeal.h"

#include "automation/LateBound.h"
#include "automation/Text.h"
#include "host/run/FirstMoves.h"
#include "tests/trials/torture/ErrorOf.h"

namespace trials::torture {

namespace {

using automation::LateBound;
using automation::ObjectPtr;
using automation::toUtf8;

/// PowerPoint as the learner has left it: a presentation not saved yet, bars arranged by hand.
void settleIn(World& world) {
    world.powerPoint().start();
    const LateBound application(world.powerPoint().application());
    const LateBound presentations(application.get(u"Presentations").to<ObjectPtr>());
    const LateBound presentation(presentations.call(u"Add").to<ObjectPtr>());
    const LateBound slides(presentation.get(u"Slides").to<ObjectPtr>());
    slides.call(u"Add", 1, 12);
    const LateBound bars(application.get(u"CommandBars").to<ObjectPtr>());
    LateBound(bars.get(u"Item", u"Formatting").to<ObjectPtr>()).put(u"Visible", false);
    LateBound(bars.get(u"Item", u"Drawing").to<ObjectPtr>()).put(u"Position", 1);
    bars.put(u"DisplayTooltips", false);
}

void comparePresentations(const Belongings& before, const Belongings& after, std::vector<std::string>& findings) {
    for (const OpenPresentation& open : before.presentations) {
        if (std::find(after.presentations.begin(), after.presentations.end(), open) == after.presentations.end()) {
            findings.push_back("the learner's presentation " + toUtf8(open.name) + " is closed or changed");
        }
    }
    if (after.presentations.size() > before.presentations.size()) {
        findings.emplace_back("a presentation is left open");
    }
}

void compareBars(const Belongings& before, const Belongings& after, std::vector<std::string>& findings) {
    for (std::size_t i = 0; i < before.bars.size(); ++i) {
        if (i >= after.bars.size() || after.bars[i] != before.bars[i]) {
            findings.push_back("the command bars were \"" + toUtf8(before.bars[i]) + "\" and now are \"" +
                               (i < after.bars.size() ? toUtf8(after.bars[i]) : "") + "\"");
        }
    }
}

} // namespace

std::string Operation::display() const {
    return toUtf8(nameOf(call)) + (arrival == Arrival::Started ? " (PowerPoint started)" : "") +
           (isHeld ? " (a question held)" : "");
}

Aftermath Ordeal::run(Operation operation, Tampering& tampering, bool foldersStayWritable) const {
    const std::size_t aliveBefore = automation::Object::alive();
    Aftermath aftermath;
    {
        const WorldPtr world = makeWorld_(tampering.observer());
        aftermath = runIn(*world, operation, tampering, foldersStayWritable);
    }
    if (const std::size_t aliveAfter = automation::Object::alive(); aliveAfter != aliveBefore) {
        aftermath.findings.push_back(std::to_string(aliveAfter - aliveBefore) + " automation objects left alive");
    }
    return aftermath;
}

Aftermath Ordeal::runIn(World& world, Operation operation, Tampering& tampering, bool foldersStayWritable) const {
    settleIn(world);
    const Belongings before(world);
    const std::int32_t windowBefore = world.powerPoint().window();
    Witness nobody;
    TrainingHost host(world, course_, file_.question, nobody);
    if (operation.arrival == Operation::Arrival::Brought) {
        host.application = world.powerPoint().application();
        host.window = windowBefore;
    } else {
        world.powerPoint().close();
    }

    Aftermath aftermath;
    const auto begin = [&] { host.initQuestion(file_.question, world.hostFolder()); };
    const auto perform = [&](HostCall call, const auto& step) {
        if (call != operation.call) {
            static_cast<void>(errorOf(step));
            return;
        }
        tampering.begin(world);
        aftermath.error = errorOf(step);
        aftermath.calls = tampering.calls(world);
        aftermath.isStruck = tampering.hasStruck(world);
    };
    if (operation.isHeld) {
        begin();
    }
    perform(HostCall::InitQuestion, begin);
    if (operation.call == HostCall::TestePoint) {
        performFirstMoves(file_, world, host);
        perform(HostCall::TestePoint, [&] {
            aftermath.reading = host.check();
            if (aftermath.reading->error) {
                throw automation::Error(*aftermath.reading->error);
            }
        });
    }
    if (operation.call != HostCall::Quitter) {
        perform(HostCall::Fermer, [&] { host.fermer(); });
    }
    perform(HostCall::Quitter, [&] { host.quitter(); });
    tampering.end(world);

    if (foldersStayWritable && folderSettings::in(world.registry()) != before.folders) {
        aftermath.findings.emplace_back("the learner's folders are not restored when the module is left");
    }
    const bool brought = operation.arrival == Operation::Arrival::Brought;
    aftermath.powerPointEnded = brought && world.powerPoint().window() != windowBefore;
    if (const auto error = errorOf([&] {
            begin();
            host.fermer();
            host.quitter();
        })) {
        aftermath.findings.push_back("the fresh start raises " + inWords(*error));
    }
    world.powerPoint().start();
    const Belongings after(world);
    if (after.folders != before.folders) {
        aftermath.findings.emplace_back("the learner's folders are not restored after a fresh start");
    }
    compareBars(before, after, aftermath.bars);
    if (brought && !aftermath.powerPointEnded) {
        comparePresentations(before, after, aftermath.findings);
    }
    for (const std::string& open : world.leftOpen()) {
        aftermath.findings.push_back(open);
    }
    host.application = nullptr;
    return aftermath;
}

} // namespace trials::torture
