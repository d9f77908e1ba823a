#include "simulator/objects/FillFormatObject.h"

namespace simulator {

const automation::MemberTable& FillFormatObject::members() const {
    using automation::method;
    using automation::property;
    using This = FillFormatObject;
    static const automation::MemberTable table = officeMembers().with({
        method<&This::background>(u"Background"),
        method<&This::oneColorGradient>(u"OneColorGradient", u"Style Variant Degree"),
        method<&This::patterned>(u"Patterned", u"Pattern"),
        method<&This::presetGradient>(u"PresetGradient", u"Style Variant PresetGradientType"),
        method<&This::presetTextured>(u"PresetTextured", u"PresetTexture"),
        method<&This::solid>(u"Solid"),
        method<&This::twoColorGradient>(u"TwoColorGradient", u"Style Variant"),
        method<&This::userPicture>(u"UserPicture", u"PictureFile"),
        method<&This::userTextured>(u"UserTextured", u"TextureFile"),
        property<&This::color<&Fill::back>>(u"BackColor"),
        property<&This::color<&Fill::fore>>(u"ForeColor"),
        property<&This::detail<msoFillGradient, &Fill::gradientStyle>>(u"GradientStyle"),
        property<&This::detail<msoFillGradient, &Fill::gradientVariant>>(u"GradientVariant"),
        property<&This::detail<msoFillPatterned, &Fill::pattern>>(u"Pattern"),
        property<&This::get<&Fill::transparency>, &This::setTransparency>(u"Transparency"),
        property<&This::get<&Fill::type>>(u"Type"),
        property<&This::get<&Fill::visible>, &This::turn<&Fill::visible>>(u"Visible"),
    });
    return table;
}

void FillFormatObject::setTransparency(float transparency) {
    errors::demandWithin(transparency, 0.0F, 1.0F, u"FillFormat.Transparency");
    set<&Fill::transparency>(transparency);
}

void FillFormatObject::solid() {
    become(msoFillSolid);
}

void FillFormatObject::patterned(std::int32_t pattern) {
    errors::demandWithin(pattern, 1, 48, u"FillFormat.Patterned");
    become(msoFillPatterned);
    set<&Fill::pattern>(pattern);
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

} // namespace simulator
