#include "simulator/objects/SlideShowSettingsObject.h"

#include "simulator/objects/PresentationObject.h"
#include "simulator/objects/SlideShowWindowObject.h"

namespace simulator {

const automation::MemberTable& SlideShowSettingsObject::members() const {
    using automation::method;
    using automation::property;
    using This = SlideShowSettingsObject;
    using Setup = SlideShowSetup;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::startingSlide, &This::setStartingSlide>(u"StartingSlide"),
        property<&This::endingSlide, &This::setEndingSlide>(u"EndingSlide"),
        property<&This::number<&Setup::rangeType>, &This::setNumber<&Setup::rangeType>>(u"RangeType"),
        property<&This::number<&Setup::showType>, &This::setNumber<&Setup::showType>>(u"ShowType"),
        property<&This::number<&Setup::advanceMode>, &This::setNumber<&Setup::advanceMode>>(u"AdvanceMode"),
        property<&This::state<&Setup::loopsUntilStopped>, &This::setState<&Setup::loopsUntilStopped>>(
            u"LoopUntilStopped"),
        property<&This::state<&Setup::hasAnimation>, &This::setState<&Setup::hasAnimation>>(u"ShowWithAnimation"),
        property<&This::state<&Setup::hasNarration>, &This::setState<&Setup::hasNarration>>(u"ShowWithNarration"),
        method<&This::run>(u"Run"),
    });
    return table;
}

automation::ObjectPtr SlideShowSettingsObject::owner() const {
    return std::make_shared<PresentationObject>(process(), node());
}

void SlideShowSettingsObject::setStartingSlide(std::int32_t place) {
    (void)placeIn(node()->slides().size(), place, u"SlideShowSettings.StartingSlide");
    nodes().change([place](Presentation& presentation) { presentation.slideShow.startingSlide = place; });
}

std::int32_t SlideShowSettingsObject::endingSlide() const {
    const PresentationPtr presentation = node();
    const std::int32_t ending = presentation->slideShow.endingSlide;
    return ending == 0 ? static_cast<std::int32_t>(presentation->slides().size()) : ending;
}

void SlideShowSettingsObject::setEndingSlide(std::int32_t place) {
    (void)placeIn(node()->slides().size(), place, u"SlideShowSettings.EndingSlide");
    nodes().change([place](Presentation& presentation) { presentation.slideShow.endingSlide = place; });
}

std::shared_ptr<SlideShowWindowObject> SlideShowSettingsObject::run() const {
    return std::make_shared<SlideShowWindowObject>(process(), process()->runSlideShow(node()));
}

} // namespace simulator
