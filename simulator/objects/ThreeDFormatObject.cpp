#include "simulator/objects/ThreeDFormatObject.h"

namespace simulator {

namespace {
constexpr std::int32_t mixed = -2;
constexpr std::int32_t lastStyle = 20;
} // namespace

const automation::MemberTable& ThreeDFormatObject::members() const {
    using automation::method;
    using automation::property;
    using This = ThreeDFormatObject;
    static const automation::MemberTable table{
        method<&This::setThreeDFormat>(u"SetThreeDFormat", u"PresetThreeDFormat"),
        property<&This::get<&ThreeD::depth>, &This::setDepth>(u"Depth"),
        property<&This::get<&ThreeD::preset>>(u"PresetThreeDFormat"),
        property<&This::get<&ThreeD::visible>, &This::setVisible>(u"Visible"),
    };
    return table;
}

void ThreeDFormatObject::setVisible(MsoTriState visible) {
    nodes().change([visible](Shape& shape) { shape.showThreeD(visible != msoFalse); });
}

void ThreeDFormatObject::setThreeDFormat(std::int32_t presetThreeDFormat) {
    errors::demandWithin(presetThreeDFormat, 1, lastStyle, u"ThreeDFormat.SetThreeDFormat");
    nodes().change([presetThreeDFormat](Shape& shape) {
        shape.threeD = ThreeD();
        shape.threeD.preset = presetThreeDFormat;
        shape.showThreeD(true);
    });
}

void ThreeDFormatObject::setDepth(float points) {
    errors::demandWithin(points, -600.0F, 9600.0F, u"ThreeDFormat.Depth");
    nodes().change([points](Shape& shape) {
        shape.threeD.depth = points;
        shape.threeD.preset = mixed;
    });
}

} // namespace simulator
