#include "simulator/objects/TextEffectFormatObject.h"

namespace simulator {

namespace {

template <typename AnyShape> auto& effectOf(AnyShape& shape) {
    if (!shape.textEffect) {
        errors::invalidRequest(u"TextEffectFormat (membre inconnu)", u"La forme n'est pas un objet WordArt.");
    }
    return *shape.textEffect;
}

} // namespace

template <typename T, typename Part> T TextEffectFormatObject::read(T mixed, const Part& part) const {
    return nodes().common(mixed, [&part](const Shape& shape) -> T { return part(effectOf(shape)); });
}

template <typename Change> void TextEffectFormatObject::write(const Change& change) const {
    nodes().change([&change](Shape& shape) { change(effectOf(shape)); });
}

const automation::MemberTable& TextEffectFormatObject::members() const {
    using automation::property;
    using This = TextEffectFormatObject;
    static const automation::MemberTable table{
        property<&This::fontBold, &This::setFontBold>(u"FontBold"),
        property<&This::fontItalic, &This::setFontItalic>(u"FontItalic"),
        property<&This::fontName, &This::setFontName>(u"FontName"),
        property<&This::fontSize, &This::setFontSize>(u"FontSize"),
        property<&This::presetTextEffect, &This::setPresetTextEffect>(u"PresetTextEffect"),
        property<&This::text, &This::setText>(u"Text"),
    };
    return table;
}

std::u16string TextEffectFormatObject::text() const {
    return read(std::u16string(), [](const TextEffect& effect) { return effect.text; });
}

void TextEffectFormatObject::setText(const std::u16string& text) {
    write([&text](TextEffect& effect) { effect.text = text; });
}

std::u16string TextEffectFormatObject::fontName() const {
    return read(std::u16string(), [](const TextEffect& effect) { return effect.fontName; });
}

void TextEffectFormatObject::setFontName(const std::u16string& fontName) {
    write([&fontName](TextEffect& effect) { effect.fontName = fontName; });
}

float TextEffectFormatObject::fontSize() const {
    return read(mixedLength, [](const TextEffect& effect) { return effect.fontSize; });
}

void TextEffectFormatObject::setFontSize(float points) {
    errors::demandWithin(points, 1.0F, 4000.0F, u"TextEffectFormat.FontSize");
    write([points](TextEffect& effect) { effect.fontSize = points; });
}

MsoTriState TextEffectFormatObject::fontBold() const {
    return read(msoTriStateMixed, [](const TextEffect& effect) { return triState(effect.bold); });
}

void TextEffectFormatObject::setFontBold(MsoTriState bold) {
    write([bold](TextEffect& effect) { effect.bold = bold != msoFalse; });
}

MsoTriState TextEffectFormatObject::fontItalic() const {
    return read(msoTriStateMixed, [](const TextEffect& effect) { return triState(effect.italic); });
}

void TextEffectFormatObject::setFontItalic(MsoTriState italic) {
    write([italic](TextEffect& effect) { effect.italic = italic != msoFalse; });
}

std::int32_t TextEffectFormatObject::presetTextEffect() const {
    return read(std::int32_t{-2}, [](const TextEffect& effect) { return effect.preset; });
}

void TextEffectFormatObject::setPresetTextEffect(std::int32_t preset) {
    errors::demandWithin(preset, 0, 29, u"TextEffectFormat.PresetTextEffect");
    write([preset](TextEffect& effect) { effect.preset = preset; });
}

} // namespace simulator
