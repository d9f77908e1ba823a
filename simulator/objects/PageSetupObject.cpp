#include "simulator/objects/PageSetupObject.h"

#include "simulator/objects/PresentationObject.h"

namespace simulator {

namespace {
constexpr float smallest = 72;
constexpr float largest = 4032;
/// MsoOrientation.
constexpr std::int32_t msoOrientationHorizontal = 1;
constexpr std::int32_t msoOrientationVertical = 2;
} // namespace

const automation::MemberTable& PageSetupObject::members() const {
    using automation::property;
    using This = PageSetupObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::slideHeight, &This::setSlideHeight>(u"SlideHeight"),
        property<&This::slideWidth, &This::setSlideWidth>(u"SlideWidth"),
        property<&This::slideOrientation, &This::setSlideOrientation>(u"SlideOrientation"),
    });
    return table;
}

void PageSetupObject::setSlideWidth(float points) {
    errors::demandWithin(points, smallest, largest, u"PageSetup.SlideWidth");
    nodes().change([points](Presentation& presentation) { presentation.slideWidth = toMasterUnits(points); });
}

void PageSetupObject::setSlideHeight(float points) {
    errors::demandWithin(points, smallest, largest, u"PageSetup.SlideHeight");
    nodes().change([points](Presentation& presentation) { presentation.slideHeight = toMasterUnits(points); });
}

std::int32_t PageSetupObject::slideOrientation() const {
    const PresentationPtr presentation = node();
    return presentation->slideWidth >= presentation->slideHeight ? msoOrientationHorizontal : msoOrientationVertical;
}

void PageSetupObject::setSlideOrientation(std::int32_t orientation) {
    errors::demandWithin(orientation, msoOrientationHorizontal, msoOrientationVertical, u"PageSetup.SlideOrientation");
    if (orientation != slideOrientation()) {
        nodes().change(
            [](Presentation& presentation) { std::swap(presentation.slideWidth, presentation.slideHeight); });
    }
}

automation::ObjectPtr PageSetupObject::owner() const {
    return std::make_shared<PresentationObject>(process(), node());
}

} // namespace simulator
