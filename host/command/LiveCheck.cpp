#include "host/command/LiveCheck.h"

#include "host/world/Members.h"

namespace host {

namespace {

using automation::LateBound;
using automation::ObjectPtr;

/// Selects the shape that question 310 looks for, where it stands on the slide by itself.
void selectWhatIsLookedFor(World& /*world*/, const ObjectPtr& presentation) {
    const LateBound slide = itemOf(memberOf(LateBound(presentation), u"Slides"), 1);
    forEachItem(memberOf(slide, u"Shapes"), [](const LateBound& shape) {
        if (memberOf(shape, u"Tags").call(u"Item", u"Identite").to<std::u16string>() == u"ZOR2") {
            shape.call(u"Select");
        }
    });
}

void putOutlineBeside(World& world, const ObjectPtr& /*presentation*/) {
    world.files().write(world.hostFolder() + u"Plan exo 3.rtf", {});
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
