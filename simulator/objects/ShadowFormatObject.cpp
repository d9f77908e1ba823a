#include "simulator/objects/ShadowFormatObject.h"

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
    static const automation::MemberTable table = officeMembers().with({
        method<&This::increment<&Shadow::offsetX>>(u"IncrementOffsetX", u"Increment"),
        method<&This::increment<&Shadow::offsetY>>(u"IncrementOffsetY", u"Increment"),
        property<&This::color<&Shadow::color>>(u"ForeColor"),
        property<&This::get<&Shadow::obscured>, &This::turn<&Shadow::obscured>>(u"Obscured"),
        property<&This::get<&Shadow::offsetX>, &This::set<&Shadow::offsetX>>(u"OffsetX"),
        property<&This::get<&Shadow::offsetY>, &This::set<&Shadow::offsetY>>(u"OffsetY"),
        property<&This::get<&Shadow::type>, &This::setType>(u"Type"),
        property<&This::get<&Shadow::transparency>, &This::setTransparency>(u"Transparency"),
        property<&This::get<&Shadow::visible>, &This::setVisible>(u"Visible"),
    });
    return table;
}

void ShadowFormatObject::setVisible(MsoTriState visible) {
    nodes().change([visible](Shape& shape) { shape.showShadow(visible != msoFalse); });
}

void ShadowFormatObject::setType(std::int32_t type) {
    errors::demandWithin(type, 1, lastShadow, u"ShadowFormat.Type");
    nodes().change([type](Shape& shape) {
        shape.shadow.type = type;
        offsetByStyle(shape.shadow, type);
        shape.showShadow(true);
    });
}

void ShadowFormatObject::setTransparency(float transparency) {
    errors::demandWithin(transparency, 0.0F, 1.0F, u"ShadowFormat.Transparency");
    set<&Shadow::transparency>(transparency);
}

} // namespace simulator
