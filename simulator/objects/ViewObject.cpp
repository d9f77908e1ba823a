#include "simulator/objects/ViewObject.h"

#include "automation/LateBound.h"
#include "simulator/objects/DocumentWindowObject.h"
#include "simulator/objects/SelectionObject.h"
#include "simulator/objects/SlideObject.h"

namespace simulator {

using automation::LateBound;

const automation::MemberTable& ViewObject::members() const {
    using automation::method;
    using automation::property;
    using This = ViewObject;
    static const automation::MemberTable table{
        property<&This::parent>(u"Parent"),
        property<&This::type>(u"Type"),
        property<&This::zoom, &This::setZoom>(u"Zoom"),
        method<&This::paste>(u"Paste"),
        property<&This::slide, &This::setSlide>(u"Slide"),
        method<&This::gotoSlide>(u"GotoSlide"),
    };
    return table;
}

void ViewObject::setZoom(std::int32_t percent) const {
    constexpr std::int32_t smallest = 10;
    constexpr std::int32_t largest = 400;
    if (percent < smallest || percent > largest) {
        errors::invalidRequest(u"View.Zoom", u"Le zoom va de 10 à 400.");
    }
    simulator::alive(window_)->zoom = percent;
}

std::shared_ptr<SlideObject> ViewObject::slide() const {
    const SlidePtr shown = simulator::alive(window_)->shown();
    if (!shown) {
        errors::invalidRequest(u"View.Slide", u"Aucune diapositive n'est affichée.");
    }
    return std::make_shared<SlideObject>(session(), shown);
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
    const Clipboard& clipboard = session()->clipboard();
    if (!clipboard.slides.empty()) {
        LateBound(parent()->presentation())
            .get(u"Slides")
            .to<automation::ObjectPtr>()
            ->invoke(u"Paste", automation::Access::Call, {});
    } else if (!clipboard.text.empty() && window->selection.type() == ppSelectionText) {
        LateBound(parent()->selection()->textRange()).call(u"Paste");
    } else {
        LateBound(slide()->shapes()).call(u"Paste");
    }
}

std::shared_ptr<DocumentWindowObject> ViewObject::parent() const {
    return std::make_shared<DocumentWindowObject>(session(), window_);
}

} // namespace simulator
