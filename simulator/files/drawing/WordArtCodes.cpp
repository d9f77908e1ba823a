#include "simulator/files/drawing/WordArtCodes.h"

#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/PropertyIds.h"

namespace simulator::drawing {

bool isWordArt(std::uint16_t kind, const Looks& looks) noexcept {
    const bool isOfKind = (kind >= kind::firstWordArt && kind <= kind::lastWordArt) ||
                          (kind >= kind::firstEffectText && kind <= kind::lastEffectText);
    return isOfKind && looks.flag(property::effectFlags, flag::effectText, true);
}

TextEffect readEffect(const Looks& looks) {
    TextEffect effect;
    effect.text = looks.text(property::effectText);
    if (looks.own(property::effectFont) != nullptr) {
        effect.fontName = looks.text(property::effectFont);
    }
    effect.fontSize = looks.fixed(property::effectSize, effect.fontSize);
    effect.bold = looks.flag(property::effectFlags, flag::effectBold, false);
    effect.italic = looks.flag(property::effectFlags, flag::effectItalic, false);
    return effect;
}

void writeEffect(PropertyTable& properties, const TextEffect& effect) {
    properties.setText(property::effectText, effect.text);
    properties.setText(property::effectFont, effect.fontName);
    properties.set(property::effectSize, code(double{effect.fontSize} * fixedPoint));
    properties.setFlag(property::effectFlags, flag::effectText, true);
    properties.setFlag(property::effectFlags, flag::effectBold, effect.bold);
    properties.setFlag(property::effectFlags, flag::effectItalic, effect.italic);
}

} // namespace simulator::drawing
