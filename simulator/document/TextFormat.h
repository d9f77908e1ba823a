#pragma once

#include "simulator/document/Color.h"
#include "simulator/document/TextConstants.h"

#include <string>

namespace simulator {

/// How a run of characters looks.
struct CharacterFormat {
    std::u16string fontName = u"Arial";
    float size = 18; ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    Color color = Color::of(ppForeground);
    bool shadow = false;
    bool emboss = false;
    bool autoRotateNumbers = false;
    float baselineOffset = 0; ///< share of the size, upwards; -1 to 1

    friend bool operator==(const CharacterFormat&, const CharacterFormat&) = default;
};

/// How a paragraph stands.
struct ParagraphFormat {
    PpParagraphAlignment alignment = ppAlignLeft;
    std::int32_t indentLevel = 1; ///< 1 to 5
    PpBulletType bullet = ppBulletNone;
    std::int32_t bulletCharacter = 0x2022;
    float spaceWithin = 1; ///< lines
    float spaceBefore = 0; ///< lines
    float spaceAfter = 0;  ///< lines

    friend bool operator==(const ParagraphFormat&, const ParagraphFormat&) = default;
};

/// How much of the room that a text leaves free is above it, or to its left: 0, a half, or 1.
[[nodiscard]] constexpr float shareAbove(MsoVerticalAnchor anchor) noexcept {
    const bool isLow = anchor == msoAnchorBottom || anchor == msoAnchorBottomBaseLine;
    return isLow ? 1.0F : anchor == msoAnchorMiddle ? 0.5F : 0.0F;
}
[[nodiscard]] constexpr float shareToTheLeft(PpParagraphAlignment alignment) noexcept {
    return alignment == ppAlignRight ? 1.0F : alignment == ppAlignCenter ? 0.5F : 0.0F;
}

/// How a text stands in its shape.
struct TextLayout {
    PpAutoSize autoSize = ppAutoSizeNone;
    bool wordWrap = true;
    float marginLeft = 7.2F;   ///< points
    float marginTop = 3.6F;    ///< points
    float marginRight = 7.2F;  ///< points
    float marginBottom = 3.6F; ///< points
    MsoTextOrientation orientation = msoTextOrientationHorizontal;
    MsoVerticalAnchor anchor = msoAnchorTop;
    bool centered = false; ///< the block of text stands in the middle between left and right

    friend bool operator==(const TextLayout&, const TextLayout&) = default;
};

} // namespace simulator
