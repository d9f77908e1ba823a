#include "tests/trials/torture/Run.h"

#include "automation/Text.h"
#include "host/run/FirstMoves.h"
#include "host/run/Snapshot.h"
#include "host/world/Members.h"
#include "tests/trials/torture/ErrorOf.h"

namespace trials::torture {

namespace {

using automation::LateBound;
using automation::ObjectPtr;
using automation::toUtf8;

std::vector<std::u16string> barsOf(const LateBound& application) {
    const LateBound bars = memberOf(application, u"CommandBars");
    std::vector<std::u16string> all;
    for (std::int32_t i = 1; i <= countOf(bars); ++i) {
        const LateBound bar(bars.get(u"Item", i).to<ObjectPtr>());
        std::u16string text = bar.get(u"Name").to<std::u16string>();
        for (const std::u16string_view member : {u"Visible", u"Enabled", u"Position"}) {
            text.append(u" ").append(bar.get(member).display());
        }
        all.push_back(std::move(text));
    }
    all.push_back(u"tooltips " + bars.get(u"DisplayTooltips").display());
    return all;
}

/// What is the learner's own: PowerPoint's four folders, its command bars and the presentations open in it.
struct LearnerState {
    /// As a world has them at the moment; PowerPoint must run for its bars and presentations.
    explicit LearnerState(World& world) : folders(folderSettings::in(world.registry())) {
        if (const ObjectPtr application = world.powerPoint().application()) {
            bars = barsOf(LateBound(application));
            presentations = Snapshot(world).presentations.value_or(std::vector<OpenPresentation>());
        }
    }

    std::array<std::u16string, 4> folders;
    std::vector<std::u16string> bars; ///< each in words, and the tooltips last
    std::vector<OpenPresentation> presentations;
};

/// PowerPoint as the learner has left it: a presentation not saved yet, bars arranged by hand.
void settleIn(World& world) {
    world.powerPoint().start();
    world.powerPoint().answerSaving(u"discard");
    const LateBound application(world.powerPoint().application());
    const LateBound presentation(memberOf(application, u"Presentations").call(u"Add").to<ObjectPtr>());
    memberOf(presentation, u"Slides").call(u"Add", 1, 12);
    const LateBound bars = memberOf(application, u"CommandBars");
    const auto bar = [&](std::u16string_view name) { return LateBound(bars.get(u"Item", name).to<ObjectPtr>()); };
    bar(u"Formatting").put(u"Visible", false);
    bar(u"Drawing").put(u"Position", 1);
    bars.put(u"DisplayTooltips", false);
}

void comparePresentations(const LearnerState& before, const LearnerState& after, std::vector<std::string>& findings) {
    for (const OpenPresentation& open : before.presentations) {
        if (std::find(after.presentations.begin(), after.presentations.end(), open) == after.presentations.end()) {
            findings.push_back("the learner's presentation " + toUtf8(open.name) + " is closed or changed");
        }
    }
    if (after.presentations.size() > before.presentations.size()) {
        findings.emplace_back("a presentation is left open");
    }
}

void compareBars(const LearnerState& before, const LearnerState& after, std::vector<std::string>& findings) {
    for (std::size_t i = 0; i < before.bars.size(); ++i) {
        if (i >= after.bars.size() || after.bars[i] != before.bars[i]) {
            findings.push_back("the command bars were \"" + toUtf8(before.bars[i]) + "\" and now are \"" +
                               (i < after.bars.size() ? toUtf8(after.bars[i]) : "") + "\"");
        }
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
    compareBars(before, after, outcome.bars);
    if (brought && !outcome.powerPointEnded) {
        comparePresentations(before, after, outcome.findings);
    }
    for (const std::string& open : world.leftOpen()) {
        outcome.findings.push_back(open);
    }
    host.application = nullptr;
    return outcome;
}

} // namespace trials::torture
