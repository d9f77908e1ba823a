#include "simulator/objects/TextEffectFormatObject.h"

namespace simulator {

const automation::MemberTable& TextEffectFormatObject::members() const {
    using automation::property;
    using This = TextEffectFormatObject;
    static const automation::MemberTable table = officeMembers().with({
        property<&This::get<&TextEffect::bold>, &This::turn<&TextEffect::bold>>(u"FontBold"),
        property<&This::get<&TextEffect::italic>, &This::turn<&TextEffect::italic>>(u"FontItalic"),
        property<&This::get<&TextEffect::fontName>, &This::set<&TextEffect::fontName>>(u"FontName"),
        property<&This::get<&TextEffect::fontSize>, &This::setFontSize>(u"FontSize"),
        property<&This::get<&TextEffect::preset>, &This::setPresetTextEffect>(u"PresetTextEffect"),
        property<&This::get<&TextEffect::text>, &This::set<&TextEffect::text>>(u"Text"),
    });
    return table;
}

void TextEffectFormatObject::setFontSize(float points) {
    errors::demandWithin(points, 1.0F, 4000.0F, u"TextEffectFormat.FontSize");
    set<&TextEffect::fontSize>(points);
}

void TextEffectFormatObject::setPresetTextEffect(std::int32_t preset) {
    errors::demandWithin(preset, 0, 29, u"TextEffectFormat.PresetTextEffect");
    set<&TextEffect::preset>(preset);
}

} // namespace simulator
