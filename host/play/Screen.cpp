#include "host/play/Screen.h"

#include "automation/Text.h"
#include "host/picture/Exposure.h"
#include "host/play/ShapeReading.h"
#include "host/world/Members.h"

#include <array>

namespace host {

namespace {

using automation::LateBound;
using automation::ObjectPtr;
using automation::toUtf8;
using nlohmann::json;

/// Reads what may not be there, and leaves it out then.
template <typename Read> void where(const Read& read) {
    try {
        read();
    } catch (const automation::Error&) {
        // what raises is not to be seen
    }
}

json slidesIn(World& world, const LateBound& presentation) {
    const Exposure exposure = expose(world);
    json slides = json::array();
    forEachItem(memberOf(presentation, u"Slides"), [&](const LateBound& slide) {
        const Picture* const picture = exposure.find(slide.get(u"SlideID").to<std::int32_t>());
        slides.push_back({{"index", slide.get(u"SlideIndex").to<std::int32_t>()},
                          {"mark", markIn(slide)},
                          {"layout", slide.get(u"Layout").to<std::int32_t>()},
                          {"picture", picture == nullptr ? std::string() : picture->bytes},
                          {"shapes", shapesIn(memberOf(slide, u"Shapes"))}});
    });
    return slides;
}

json selectionIn(const LateBound& window) {
    const LateBound selection = memberOf(window, u"Selection");
    const auto kind = selection.get(u"Type").to<std::int32_t>();
    json found{{"kind", kind}, {"slides", json::array()}, {"shapes", json::array()}};
    constexpr std::int32_t slides = 1;
    constexpr std::int32_t text = 3;
    if (kind == slides) {
        forEachItem(memberOf(selection, u"SlideRange"), [&](const LateBound& slide) {
            found["slides"].push_back(slide.get(u"SlideIndex").to<std::int32_t>());
        });
    } else if (kind != 0) {
        const bool isWithinGroup = selection.get(u"HasChildShapeRange").to<bool>();
        forEachItem(memberOf(selection, isWithinGroup ? u"ChildShapeRange" : u"ShapeRange"),
                    [&](const LateBound& shape) { found["shapes"].push_back(shape.get(u"Id").to<std::int32_t>()); });
    }
    if (kind == text) {
        const LateBound range = memberOf(selection, u"TextRange");
        found["start"] = range.get(u"Start").to<std::int32_t>();
        found["length"] = range.get(u"Length").to<std::int32_t>();
    }
    return found;
}

void addWindow(json& screen, const LateBound& window) {
    screen["view"] = window.get(u"ViewType").to<std::int32_t>();
    where([&] { screen["pane"] = memberOf(window, u"ActivePane").get(u"ViewType").to<std::int32_t>(); });
    where(
        [&] { screen["slide"] = memberOf(memberOf(window, u"View"), u"Slide").get(u"SlideIndex").to<std::int32_t>(); });
    where([&] { screen["selection"] = selectionIn(window); });
}

void addPresentation(json& screen, World& world, const LateBound& presentation) {
    screen["presentation"] = toUtf8(presentation.get(u"FullName").to<std::u16string>());
    screen["snapToGrid"] = presentation.get(u"SnapToGrid").to<bool>();
    const LateBound page = memberOf(presentation, u"PageSetup");
    screen["width"] = page.get(u"SlideWidth").to<float>();
    screen["height"] = page.get(u"SlideHeight").to<float>();
    screen["slides"] = slidesIn(world, presentation);
}

} // namespace

json screenOf(World& world) {
    json screen{{"running", false}, {"dialogs", world.powerPoint().dialogs()}, {"slides", json::array()}};
    where([&] {
        const ObjectPtr running = world.powerPoint().application();
        if (!running) {
            return;
        }
        screen["running"] = true;
        const LateBound application(running);
        screen["visible"] = application.get(u"Visible").to<bool>();
        screen["presentations"] = json::array();
        forEachItem(memberOf(application, u"Presentations"), [&](const LateBound& open) {
            screen["presentations"].push_back(toUtf8(open.get(u"Name").to<std::u16string>()));
        });
        addPresentation(screen, world, memberOf(application, u"ActivePresentation"));
        addWindow(screen, memberOf(application, u"ActiveWindow"));
    });
    return screen;
}

} // namespace host
