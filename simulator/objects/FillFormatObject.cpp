#include "simulator/objects/FillFormatObject.h"

#include "simulator/objects/ShapeColor.h"

namespace simulator {

namespace {

constexpr std::int32_t mixed = -2;

} // namespace

const automation::MemberTable& FillFormatObject::members() const {
    using automation::method;
    using automation::property;
    using This = FillFormatObject;
    static const automation::MemberTable table{
        method<&This::background>(u"Background"),
        method<&This::oneColorGradient>(u"OneColorGradient"),
        method<&This::patterned>(u"Patterned"),
        method<&This::presetGradient>(u"PresetGradient"),
        method<&This::presetTextured>(u"PresetTextured"),
        method<&This::solid>(u"Solid"),
        method<&This::twoColorGradient>(u"TwoColorGradient"),
        method<&This::userPicture>(u"UserPicture"),
        method<&This::userTextured>(u"UserTextured"),
        property<&This::backColor>(u"BackColor"),
        property<&This::foreColor>(u"ForeColor"),
        property<&This::gradientStyle>(u"GradientStyle"),
        property<&This::gradientVariant>(u"GradientVariant"),
        property<&This::pattern>(u"Pattern"),
        property<&This::transparency, &This::setTransparency>(u"Transparency"),
        property<&This::type>(u"Type"),
        property<&This::visible, &This::setVisible>(u"Visible"),
    };
    return table;
}

MsoTriState FillFormatObject::visible() const {
    return nodes().common(msoTriStateMixed, [](const Shape& shape) { return triState(shape.fill.visible); });
}

void FillFormatObject::setVisible(MsoTriState visible) {
    nodes().change([visible](Shape& shape) { shape.fill.visible = visible != msoFalse; });
}

MsoFillType FillFormatObject::type() const {
    return nodes().common(msoFillMixed, [](const Shape& shape) { return shape.fill.type; });
}

float FillFormatObject::transparency() const {
    return nodes().common(mixedLength, [](const Shape& shape) { return shape.fill.transparency; });
}

void FillFormatObject::setTransparency(float transparency) {
    errors::demandWithin(transparency, 0.0F, 1.0F, u"FillFormat.Transparency");
    nodes().change([transparency](Shape& shape) { shape.fill.transparency = transparency; });
}

std::shared_ptr<ColorFormatObject> FillFormatObject::foreColor() const {
    return colorOf(session(), nodes(), [](Shape& shape) -> Color& { return shape.fill.fore; });
}

std::shared_ptr<ColorFormatObject> FillFormatObject::backColor() const {
    return colorOf(session(), nodes(), [](Shape& shape) -> Color& { return shape.fill.back; });
}

std::int32_t FillFormatObject::pattern() const {
    return detail(msoFillPatterned, &Fill::pattern);
}

std::int32_t FillFormatObject::gradientStyle() const {
    return detail(msoFillGradient, &Fill::gradientStyle);
}

std::int32_t FillFormatObject::gradientVariant() const {
    return detail(msoFillGradient, &Fill::gradientVariant);
}

void FillFormatObject::solid() {
    become(msoFillSolid);
}

void FillFormatObject::patterned(std::int32_t pattern) {
    errors::demandWithin(pattern, 1, 48, u"FillFormat.Patterned");
    become(msoFillPatterned);
    nodes().change([pattern](Shape& shape) { shape.fill.pattern = pattern; });
}

void FillFormatObject::oneColorGradient(std::int32_t style, std::int32_t variant, float degree) {
    errors::demandWithin(degree, 0.0F, 1.0F, u"FillFormat.OneColorGradient");
    becomeGradient(style, variant);
    const auto level = static_cast<std::int32_t>(degree * 255.0F);
    nodes().change([level](Shape& shape) { shape.fill.back = Color::direct(level * 0x010101); });
}

void FillFormatObject::twoColorGradient(std::int32_t style, std::int32_t variant) {
    becomeGradient(style, variant);
}

void FillFormatObject::presetGradient(std::int32_t style, std::int32_t variant, std::int32_t presetGradientType) {
    errors::demandWithin(presetGradientType, 1, 24, u"FillFormat.PresetGradient");
    becomeGradient(style, variant);
}

void FillFormatObject::presetTextured(std::int32_t presetTexture) {
    errors::demandWithin(presetTexture, 1, 24, u"FillFormat.PresetTextured");
    become(msoFillTextured);
}

void FillFormatObject::userTextured(const std::u16string& /*textureFile*/) {
    become(msoFillTextured);
}

void FillFormatObject::userPicture(const std::u16string& /*pictureFile*/) {
    become(msoFillPicture);
}

void FillFormatObject::background() {
    become(msoFillBackground);
}

void FillFormatObject::become(MsoFillType type) const {
    nodes().change([type](Shape& shape) {
        shape.fill.type = type;
        shape.fill.visible = true;
    });
}

void FillFormatObject::becomeGradient(std::int32_t style, std::int32_t variant) const {
    errors::demandWithin(style, 1, 7, u"FillFormat.GradientStyle");
    errors::demandWithin(variant, 1, 4, u"FillFormat.GradientVariant");
    become(msoFillGradient);
    nodes().change([style, variant](Shape& shape) {
        shape.fill.gradientStyle = style;
        shape.fill.gradientVariant = variant;
    });
}

std::int32_t FillFormatObject::detail(MsoFillType type, std::int32_t Fill::*part) const {
    return nodes().common(
        mixed, [type, part](const Shape& shape) { return shape.fill.type == type ? shape.fill.*part : mixed; });
}

} // namespace simulator
