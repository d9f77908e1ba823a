#include "simulator/objects/ViewObject.h"

#include "automation/LateBound.h"
#include "simulator/objects/DocumentWindowObject.h"
#include "simulator/objects/SelectionObject.h"
#include "simulator/objects/ShapeRangeObject.h"
#include "simulator/objects/ShapesObject.h"
#include "simulator/objects/SlideObject.h"
#include "simulator/objects/SlideRangeObject.h"
#include "simulator/objects/SlidesObject.h"
#include "simulator/objects/TextRangeObject.h"

namespace simulator {

using automation::LateBound;

namespace {

/// True where one shape is selected that can hold text: what is pasted is appended to it.
bool isTextTakenBy(const Selection& selection) {
    const std::vector<ShapePtr> shapes = selection.shapes();
    return selection.type() == ppSelectionShapes && shapes.size() == 1 && shapes.front()->text;
}

} // namespace

const automation::MemberTable& ViewObject::members() const {
    using automation::method;
    using automation::property;
    using This = ViewObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::type>(u"Type"),
        property<&This::zoom, &This::setZoom>(u"Zoom"),
        method<&This::paste>(u"Paste"),
        property<&This::slide, &This::setSlide>(u"Slide"),
        method<&This::gotoSlide>(u"GotoSlide", u"Index"),
    });
    return table;
}

void ViewObject::setZoom(std::int32_t percent) const {
    constexpr std::int32_t smallestZoom = 10;
    constexpr std::int32_t largestZoom = 400;
    if (percent < smallestZoom || percent > largestZoom) {
        errors::invalidRequest(u"View.Zoom", u"Le zoom va de 10 à 400.");
    }
    simulator::alive(window_)->zoom = percent;
}

std::shared_ptr<SlideObject> ViewObject::slide() const {
    const SlidePtr shown = simulator::alive(window_)->shown();
    if (!shown) {
        errors::invalidRequest(u"View.Slide", u"Aucune diapositive n'est affichée.");
    }
    return std::make_shared<SlideObject>(process(), shown);
}

void ViewObject::setSlide(const automation::ObjectPtr& slide) const {
    gotoSlide(LateBound(slide).get(u"SlideIndex").to<std::int32_t>());
}

void ViewObject::gotoSlide(std::int32_t index) const {
    const DocumentWindowPtr window = simulator::alive(window_);
    const auto& slides = simulator::alive(window->presentation)->slides();
    if (index < 1 || static_cast<std::size_t>(index) > slides.size()) {
        errors::outOfRange(u"View.GotoSlide", index, slides.size());
    }
    window->show(slides[static_cast<std::size_t>(index) - 1]);
}

void ViewObject::paste() const {
    const DocumentWindowPtr window = simulator::alive(window_);
    const Clipboard& clipboard = process()->clipboard();
    if (!clipboard.slides.empty()) {
        pasteSlides();
    } else if (!clipboard.text.text().empty() && window->selection.type() == ppSelectionText) {
        DocumentWindowObject(process(), window_).selection()->textRange()->paste();
    } else if (!clipboard.text.text().empty() && isTextTakenBy(window->selection)) {
        const ShapePtr shape = window->selection.shapes().front();
        TextRangeObject(process(), TextPart(shape, {shape->text->text().size(), 0})).paste();
    } else {
        slide()->shapes()->paste();
    }
}

void ViewObject::pasteSlides() const {
    const DocumentWindowPtr window = simulator::alive(window_);
    const SlidePtr shown = window->shown();
    const PresentationPtr presentation = simulator::alive(window->presentation);
    const std::size_t next = shown ? presentation->placeOf(*shown) + 1 : 0;
    const bool goesLast = next == presentation->slides().size();
    SlidesObject(process(), presentation)
        .paste(goesLast ? std::nullopt : std::optional(static_cast<std::int32_t>(next) + 1));
}

automation::ObjectPtr ViewObject::owner() const {
    return std::make_shared<DocumentWindowObject>(process(), window_);
}

} // namespace simulator
