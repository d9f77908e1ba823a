#include "simulator/objects/ShadowFormatObject.h"

#include "simulator/objects/ShapeColor.h"

namespace simulator {

namespace {

constexpr std::int32_t lastShadow = 20;
constexpr float styleOffset = 6;

/// Gives a shadow the offset of a style, where the style is a plain shadow to one corner.
void offsetByStyle(Shadow& shadow, std::int32_t style) {
    const auto cast = [&shadow](float x, float y) {
        shadow.offsetX = x;
        shadow.offsetY = y;
    };
    switch (style) {
    case 1: return cast(-styleOffset, -styleOffset);
    case 2: return cast(styleOffset, -styleOffset);
    case 5: return cast(-styleOffset, styleOffset);
    case 6: return cast(styleOffset, styleOffset);
    default: return;
    }
}

} // namespace

const automation::MemberTable& ShadowFormatObject::members() const {
    using automation::method;
    using automation::property;
    using This = ShadowFormatObject;
    static const automation::MemberTable table{
        method<&This::incrementOffsetX>(u"IncrementOffsetX"),
        method<&This::incrementOffsetY>(u"IncrementOffsetY"),
        property<&This::foreColor>(u"ForeColor"),
        property<&This::obscured, &This::setObscured>(u"Obscured"),
        property<&This::offsetX, &This::setOffsetX>(u"OffsetX"),
        property<&This::offsetY, &This::setOffsetY>(u"OffsetY"),
        property<&This::type, &This::setType>(u"Type"),
        property<&This::visible, &This::setVisible>(u"Visible"),
    };
    return table;
}

MsoTriState ShadowFormatObject::visible() const {
    return nodes().common(msoTriStateMixed, [](const Shape& shape) { return triState(shape.shadow.visible); });
}

void ShadowFormatObject::setVisible(MsoTriState visible) {
    nodes().change([visible](Shape& shape) { shape.showShadow(visible != msoFalse); });
}

std::int32_t ShadowFormatObject::type() const {
    return nodes().common(std::int32_t{-2}, [](const Shape& shape) { return shape.shadow.type; });
}

void ShadowFormatObject::setType(std::int32_t type) {
    errors::demandWithin(type, 1, lastShadow, u"ShadowFormat.Type");
    nodes().change([type](Shape& shape) {
        shape.shadow.type = type;
        offsetByStyle(shape.shadow, type);
        shape.showShadow(true);
    });
}

std::shared_ptr<ColorFormatObject> ShadowFormatObject::foreColor() const {
    return colorOf(session(), nodes(), [](Shape& shape) -> Color& { return shape.shadow.color; });
}

float ShadowFormatObject::offsetX() const {
    return nodes().common(mixedLength, [](const Shape& shape) { return shape.shadow.offsetX; });
}

void ShadowFormatObject::setOffsetX(float points) {
    nodes().change([points](Shape& shape) { shape.shadow.offsetX = points; });
}

float ShadowFormatObject::offsetY() const {
    return nodes().common(mixedLength, [](const Shape& shape) { return shape.shadow.offsetY; });
}

void ShadowFormatObject::setOffsetY(float points) {
    nodes().change([points](Shape& shape) { shape.shadow.offsetY = points; });
}

void ShadowFormatObject::incrementOffsetX(float points) {
    nodes().change([points](Shape& shape) { shape.shadow.offsetX += points; });
}

void ShadowFormatObject::incrementOffsetY(float points) {
    nodes().change([points](Shape& shape) { shape.shadow.offsetY += points; });
}

MsoTriState ShadowFormatObject::obscured() const {
    return nodes().common(msoTriStateMixed, [](const Shape& shape) { return triState(shape.shadow.obscured); });
}

void ShadowFormatObject::setObscured(MsoTriState obscured) {
    nodes().change([obscured](Shape& shape) { shape.shadow.obscured = obscured != msoFalse; });
}

} // namespace simulator
