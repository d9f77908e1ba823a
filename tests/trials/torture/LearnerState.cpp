#include "tests/trials/torture/LearnerState.h"

#include "host/world/Members.h"

namespace trials::torture {

namespace {

using automation::LateBound;
using automation::ObjectPtr;

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

} // namespace

LearnerState::LearnerState(World& world) : folders(folderSettings::in(world.registry())) {
    if (const ObjectPtr application = world.powerPoint().application()) {
        bars = barsOf(LateBound(application));
        presentations = Snapshot(world).presentations.value_or(std::vector<OpenPresentation>());
    }
}

} // namespace trials::torture
