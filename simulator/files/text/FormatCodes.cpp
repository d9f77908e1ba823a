#include "simulator/files/text/FormatCodes.h"

#include "simulator/files/bytes/ColorBits.h"

#include <cmath>

namespace simulator::text {

namespace {

constexpr std::uint32_t directKind = 0xFE;

Color textColor(std::uint32_t code, const Color& otherwise) {
    const std::uint32_t index = code >> 24U;
    if (index < files::schemeColors) {
        return Color::of(static_cast<PpColorSchemeIndex>(index + 1));
    }
    return index == directKind ? files::directColor(code) : otherwise;
}

std::uint32_t colorCode(const Color& color) {
    return color.scheme == ppNotSchemeColor ? (directKind << 24U) | files::rgbOf(color)
                                            : static_cast<std::uint32_t>(color.scheme - 1) << 24U;
}

void overlayLines(float& lines, const TextException& exception, std::size_t place) {
    const auto percent = static_cast<std::int16_t>(exception.values.at(place));
    if (exception.has(paragraph::fields.at(place)) && percent >= 0) {
        lines = static_cast<float>(percent) / 100;
    }
}

void overlayStyle(bool& style, const TextException& exception, std::uint32_t bit) {
    if ((exception.mask & bit) != 0) {
        style = (exception.values[character::Style] & bit) != 0;
    }
}

std::uint32_t rounded(float number) {
    return static_cast<std::uint32_t>(std::lround(number));
}

} // namespace

void overlay(const TextException& exception, const FontTable& fonts, CharacterFormat& format) {
    using namespace character;
    overlayStyle(format.bold, exception, bold);
    overlayStyle(format.italic, exception, italic);
    overlayStyle(format.underline, exception, underline);
    overlayStyle(format.shadow, exception, shadow);
    overlayStyle(format.emboss, exception, emboss);
    overlayStyle(format.autoRotateNumbers, exception, uprightNumbers);
    const std::u16string* const font = exception.has(fields[Font]) ? fonts.name(exception.values[Font]) : nullptr;
    if (font != nullptr) {
        format.fontName = *font;
    }
    if (exception.has(fields[Size])) {
        format.size = static_cast<float>(exception.values[Size]);
    }
    if (exception.has(fields[character::Color])) {
        format.color = textColor(exception.values[character::Color], format.color);
    }
    if (exception.has(fields[Position])) {
        format.baselineOffset = static_cast<float>(static_cast<std::int16_t>(exception.values[Position])) / 100;
    }
}

void overlay(const TextException& exception, ParagraphFormat& format) {
    using namespace paragraph;
    if ((exception.mask & hasBullet) != 0) {
        format.bullet = (exception.values[BulletFlags] & hasBullet) != 0 ? ppBulletUnnumbered : ppBulletNone;
    }
    if (exception.has(fields[BulletCharacter])) {
        format.bulletCharacter = static_cast<std::int32_t>(exception.values[BulletCharacter]);
    }
    if (exception.has(fields[Alignment]) && exception.values[Alignment] < ppAlignDistribute) {
        format.alignment = static_cast<PpParagraphAlignment>(exception.values[Alignment] + 1);
    }
    overlayLines(format.spaceWithin, exception, SpaceWithin);
    overlayLines(format.spaceBefore, exception, SpaceBefore);
    overlayLines(format.spaceAfter, exception, SpaceAfter);
}

TextException codeOf(const CharacterFormat& format, FontTable& fonts) {
    using namespace character;
    TextException code;
    code.set(Style, bold | italic | underline | shadow | emboss | uprightNumbers,
             (format.bold ? bold : 0) | (format.italic ? italic : 0) | (format.underline ? underline : 0) |
                 (format.shadow ? shadow : 0) | (format.emboss ? emboss : 0) |
                 (format.autoRotateNumbers ? uprightNumbers : 0));
    code.set(Font, fields[Font].bits, fonts.number(format.fontName));
    code.set(Size, fields[Size].bits, rounded(format.size));
    code.set(character::Color, fields[character::Color].bits, colorCode(format.color));
    if (format.baselineOffset != 0) {
        code.set(Position, fields[Position].bits, rounded(format.baselineOffset * 100) & 0xFFFFU);
    }
    return code;
}

TextException codeOf(const ParagraphFormat& format) {
    using namespace paragraph;
    TextException code;
    code.set(BulletFlags, hasBullet, format.bullet == ppBulletNone ? 0 : hasBullet);
    code.set(BulletCharacter, fields[BulletCharacter].bits, static_cast<std::uint32_t>(format.bulletCharacter));
    code.set(Alignment, fields[Alignment].bits, static_cast<std::uint32_t>(format.alignment - 1));
    code.set(SpaceWithin, fields[SpaceWithin].bits, rounded(format.spaceWithin * 100));
    code.set(SpaceBefore, fields[SpaceBefore].bits, rounded(format.spaceBefore * 100));
    code.set(SpaceAfter, fields[SpaceAfter].bits, rounded(format.spaceAfter * 100));
    return code;
}

} // namespace simulator::text
