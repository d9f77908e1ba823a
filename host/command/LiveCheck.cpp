#include "host/command/LiveCheck.h"

#include "automation/LateBound.h"

namespace host {

namespace {

using automation::LateBound;
using automation::ObjectPtr;

/// Selects the shape that question 310 looks for, where it stands on the slide by itself.
void selectWhatIsLookedFor(World& /*world*/, const ObjectPtr& presentation) {
    const LateBound slides(LateBound(presentation).get(u"Slides").to<ObjectPtr>());
    const LateBound slide(slides.call(u"Item", std::int32_t{1}).to<ObjectPtr>());
    const LateBound shapes(slide.get(u"Shapes").to<ObjectPtr>());
    const auto count = shapes.get(u"Count").to<std::int32_t>();
    for (std::int32_t i = 1; i <= count; ++i) {
        const LateBound shape(shapes.call(u"Item", i).to<ObjectPtr>());
        const LateBound tags(shape.get(u"Tags").to<ObjectPtr>());
        if (tags.call(u"Item", u"Identite").to<std::u16string>() == u"ZOR2") {
            shape.call(u"Select");
        }
    }
}

void putOutlineBeside(World& world, const ObjectPtr& /*presentation*/) {
    world.writeFile(world.hostFolder() + u"Plan exo 3.rtf", {});
}

} // namespace

const std::vector<LiveCheck>& liveChecks() {
    static const std::vector<LiveCheck> checks{
        {0, "that the working presentation is open under its name and in front (taken as open)"},
        {304, "that the outline is saved as rich text in the working folder (taken as saved)", putOutlineBeside},
        {308, "the colour that the replaced word had at last (taken as delivered)"},
        {310, "that the text shape is selected, and nothing else (taken as selected)", selectWhatIsLookedFor},
        {312, "the state of the toolbar of curves (taken as it is in a new PowerPoint)"},
    };
    return checks;
}

} // namespace host
