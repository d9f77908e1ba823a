#include "simulator/objects/SlideShowViewObject.h"

#include "simulator/objects/CollectionLookup.h"
#include "simulator/objects/SlideObject.h"
#include "simulator/objects/TriState.h"

namespace simulator {

const automation::MemberTable& SlideShowViewObject::members() const {
    using automation::method;
    using automation::property;
    using This = SlideShowViewObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::slide>(u"Slide"),
        property<&This::lastSlideViewed>(u"LastSlideViewed"),
        property<&This::currentShowPosition>(u"CurrentShowPosition"),
        property<&This::state, &This::setState>(u"State"),
        property<&This::pointerType, &This::setPointerType>(u"PointerType"),
        property<&This::acceleratorsEnabled, &This::setAcceleratorsEnabled>(u"AcceleratorsEnabled"),
        property<&This::advanceMode>(u"AdvanceMode"),
        method<&This::gotoSlide>(u"GotoSlide", u"Index ResetSlide"),
        method<&This::next>(u"Next"),
        method<&This::previous>(u"Previous"),
        method<&This::first>(u"First"),
        method<&This::last>(u"Last"),
        method<&This::exit>(u"Exit"),
    });
    return table;
}

automation::ObjectPtr SlideShowViewObject::owner() const {
    return std::make_shared<SlideShowWindowObject>(process(), window());
}

std::shared_ptr<SlideObject> SlideShowViewObject::slide() const {
    const SlidePtr shown = window()->shown();
    if (!shown) {
        errors::invalidRequest(u"SlideShowView.Slide", u"Aucune diapositive n'est affichée.");
    }
    return std::make_shared<SlideObject>(process(), shown);
}

std::shared_ptr<SlideObject> SlideShowViewObject::lastSlideViewed() const {
    const SlidePtr shown = window()->shownBefore();
    if (!shown) {
        errors::invalidRequest(u"SlideShowView.LastSlideViewed", u"Aucune diapositive n'a été affichée auparavant.");
    }
    return std::make_shared<SlideObject>(process(), shown);
}

void SlideShowViewObject::setState(PpSlideShowState state) const {
    errors::demandWithin(state, ppSlideShowRunning, ppSlideShowDone, u"SlideShowView.State");
    const SlideShowWindowPtr show = window();
    show->state = state;
    if (state == ppSlideShowDone) {
        show->end();
    }
}

void SlideShowViewObject::setPointerType(std::int32_t type) const {
    constexpr std::int32_t ppSlideShowPointerNone = 0;
    constexpr std::int32_t ppSlideShowPointerEraser = 5;
    errors::demandWithin(type, ppSlideShowPointerNone, ppSlideShowPointerEraser, u"SlideShowView.PointerType");
    window()->pointerType = type;
}

MsoTriState SlideShowViewObject::acceleratorsEnabled() const {
    return triState(window()->acceleratorsEnabled);
}

void SlideShowViewObject::setAcceleratorsEnabled(MsoTriState enabled) const {
    window()->acceleratorsEnabled = enabled != msoFalse;
}

std::int32_t SlideShowViewObject::advanceMode() const {
    return simulator::alive(window()->presentation)->slideShow.advanceMode;
}

void SlideShowViewObject::gotoSlide(std::int32_t index, std::optional<MsoTriState> /*resetSlide*/) const {
    const SlideShowWindowPtr show = window();
    const std::vector<SlidePtr>& slides = simulator::alive(show->presentation)->slides();
    show->show(slides[placeIn(slides.size(), index, u"SlideShowView.GotoSlide")]);
}

} // namespace simulator
