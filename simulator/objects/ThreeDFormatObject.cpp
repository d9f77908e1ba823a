#include "simulator/objects/ThreeDFormatObject.h"

namespace simulator {

namespace {
constexpr std::int32_t automaticColor = 1;
constexpr std::int32_t customColor = 2;
constexpr std::int32_t lastStyle = 20;
} // namespace

const automation::MemberTable& ThreeDFormatObject::members() const {
    using automation::method;
    using automation::property;
    using This = ThreeDFormatObject;
    static const automation::MemberTable table = officeMembers().with({
        method<&This::setThreeDFormat>(u"SetThreeDFormat", u"PresetThreeDFormat"),
        property<&This::get<&ThreeD::depth>, &This::setDepth>(u"Depth"),
        method<&This::setExtrusionDirection>(u"SetExtrusionDirection", u"PresetExtrusionDirection"),
        method<&This::turnBy<&ThreeD::rotationX>>(u"IncrementRotationX", u"Increment"),
        method<&This::turnBy<&ThreeD::rotationY>>(u"IncrementRotationY", u"Increment"),
        method<&This::resetRotation>(u"ResetRotation"),
        property<&This::get<&ThreeD::rotationX>, &This::turnTo<&ThreeD::rotationX>>(u"RotationX"),
        property<&This::get<&ThreeD::rotationY>, &This::turnTo<&ThreeD::rotationY>>(u"RotationY"),
        property<&This::get<&ThreeD::direction>>(u"PresetExtrusionDirection"),
        property<&This::get<&ThreeD::lighting>, &This::setLighting>(u"PresetLightingDirection"),
        property<&This::get<&ThreeD::softness>, &This::setSoftness>(u"PresetLightingSoftness"),
        property<&This::get<&ThreeD::material>, &This::setMaterial>(u"PresetMaterial"),
        property<&This::get<&ThreeD::perspective>, &This::setPerspective>(u"Perspective"),
        property<&This::extrusionColor>(u"ExtrusionColor"),
        property<&This::extrusionColorType, &This::setExtrusionColorType>(u"ExtrusionColorType"),
        property<&This::get<&ThreeD::preset>>(u"PresetThreeDFormat"),
        property<&This::get<&ThreeD::visible>, &This::setVisible>(u"Visible"),
    });
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

std::shared_ptr<ColorFormatObject> ThreeDFormatObject::extrusionColor() const {
    const ShapeSet shapes = nodes();
    return std::make_shared<ColorFormatObject>(
        process(), self(),
        [shapes] {
            const ShapePtr first = shapes.first();
            return first->threeD.hasOwnColor ? first->threeD.color : first->fill.fore;
        },
        [shapes](Color color) {
            shapes.change([&color](Shape& shape) {
                shape.threeD.color = color;
                shape.threeD.hasOwnColor = true;
                shape.threeD.preset = mixedStyle;
            });
        },
        [shapes] { return schemeOf(*shapes.first()); });
}

std::int32_t ThreeDFormatObject::extrusionColorType() const {
    const auto typeOf = [](const Shape& shape) { return shape.threeD.hasOwnColor ? customColor : automaticColor; };
    return nodes().common(mixedStyle, typeOf);
}

void ThreeDFormatObject::setExtrusionColorType(std::int32_t type) {
    errors::demandWithin(type, automaticColor, customColor, u"ThreeDFormat.ExtrusionColorType");
    change([type](ThreeD& threeD) { threeD.hasOwnColor = type == customColor; });
}

} // namespace simulator
