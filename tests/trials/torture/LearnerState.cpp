#include "tests/trials/torture/LearnerState.h"

#include "automation/Text.h"
#include "host/world/Members.h"

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
        auto text = bar.get(u"Name").to<std::u16string>();
        for (const std::u16string_view member : {u"Visible", u"Enabled", u"Position"}) {
            text.append(u" ").append(bar.get(member).display());
        }
        all.push_back(std::move(text));
    }
    all.push_back(u"tooltips " + bars.get(u"DisplayTooltips").display());
    all.push_back(u"startup dialog " + application.get(u"ShowStartupDialog").display());
    return all;
}

} // namespace

LearnerState::LearnerState(World& world) : folders(folderSettings::in(world.registry())) {
    if (const ObjectPtr application = world.powerPoint().application()) {
        bars = barsOf(LateBound(application));
        presentations = Snapshot(world).presentations.value_or(std::vector<OpenPresentation>());
    }
}

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

std::vector<std::string> barsChanged(const LearnerState& before, const LearnerState& after) {
    std::vector<std::string> changed;
    for (std::size_t i = 0; i < before.bars.size(); ++i) {
        const std::u16string now = i < after.bars.size() ? after.bars[i] : u"";
        if (now != before.bars[i]) {
            changed.push_back("the learner's \"" + toUtf8(before.bars[i]) + "\" is now \"" + toUtf8(now) + "\"");
        }
    }
    return changed;
}

} // namespace trials::torture
