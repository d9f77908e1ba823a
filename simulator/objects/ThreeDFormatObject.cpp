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
        method<&This::setThreeDFormat>(u"SetThreeDFormat"),
        property<&This::depth, &This::setDepth>(u"Depth"),
        property<&This::presetThreeDFormat>(u"PresetThreeDFormat"),
        property<&This::visible, &This::setVisible>(u"Visible"),
    };
    return table;
}

MsoTriState ThreeDFormatObject::visible() const {
    return nodes().common(msoTriStateMixed, [](const Shape& shape) { return triState(shape.threeD.visible); });
}

void ThreeDFormatObject::setVisible(MsoTriState visible) {
    nodes().change([visible](Shape& shape) { shape.showThreeD(visible != msoFalse); });
}

std::int32_t ThreeDFormatObject::presetThreeDFormat() const {
    return nodes().common(mixed, [](const Shape& shape) { return shape.threeD.preset; });
}

void ThreeDFormatObject::setThreeDFormat(std::int32_t presetThreeDFormat) {
    errors::demandWithin(presetThreeDFormat, 1, lastStyle, u"ThreeDFormat.SetThreeDFormat");
    nodes().change([presetThreeDFormat](Shape& shape) {
        shape.threeD = ThreeD();
        shape.threeD.preset = presetThreeDFormat;
        shape.showThreeD(true);
    });
}

float ThreeDFormatObject::depth() const {
    return nodes().common(mixedLength, [](const Shape& shape) { return shape.threeD.depth; });
}

void ThreeDFormatObject::setDepth(float points) {
    errors::demandWithin(points, -600.0F, 9600.0F, u"ThreeDFormat.Depth");
    nodes().change([points](Shape& shape) {
        shape.threeD.depth = points;
        shape.threeD.preset = mixed;
    });
}

} // namespace simulator
