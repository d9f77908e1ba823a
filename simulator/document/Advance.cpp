#include "simulator/document/Advance.h"

#include "automation/Text.h"

#include <array>

namespace simulator {

namespace {

/// Thousandths of the font size, from blank to tilde.
constexpr std::array<std::int16_t, 95> widths{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584,
};

/// Letters with accents of Latin-1 (from U+00C0) as the letters that they are built on.
constexpr std::u16string_view unaccented = u"AAAAAAMCEEEEIIIIDNOOOOO+OUUUUYPsaaaaaamceeeeiiiidnooooo+ouuuuypy";

/// How wide a font runs beside Arial.
struct Family {
    std::u16string_view name;
    float share;
};

constexpr auto families = std::to_array<Family>({
    {u"Arial Black", 1.18F},
    {u"Arial Narrow", 0.82F},
    {u"Comic Sans MS", 1.06F},
    {u"Garamond", 0.86F},
    {u"Impact", 0.95F},
    {u"Tahoma", 0.98F},
    {u"Times New Roman", 0.9F},
    {u"Verdana", 1.15F},
});
constexpr float boldShare = 1.06F;
constexpr float fixedWidth = 0.6F;

float shareOf(std::u16string_view fontName) noexcept {
    for (const Family& family : families) {
        if (automation::equalIgnoringCase(family.name, fontName)) {
            return family.share;
        }
    }
    return 1;
}

float widthOf(char16_t character) noexcept {
    constexpr char16_t firstAccented = 0xC0;
    if (character >= firstAccented && character < firstAccented + unaccented.size()) {
        character = unaccented[character - firstAccented];
    }
    if (character == 0xA0 || character == u'\t' || character == 0x2019) {
        character = character == 0x2019 ? u'\'' : u' ';
    }
    const auto place = static_cast<std::size_t>(character - u' ');
    const bool isKnown = character >= u' ' && place < widths.size();
    return static_cast<float>(isKnown ? widths.at(place) : widths.at('m' - ' ')) / 1000;
}

} // namespace

float advanceOf(char16_t character, const CharacterFormat& format) noexcept {
    if (automation::equalIgnoringCase(format.fontName, u"Courier New")) {
        return fixedWidth * format.size;
    }
    return widthOf(character) * shareOf(format.fontName) * (format.bold ? boldShare : 1) * format.size;
}

} // namespace simulator
