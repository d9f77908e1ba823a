#pragma once

#include "simulator/document/Color.h"

#include <string>

namespace simulator {

/// How a shape is filled.
struct Fill {
    bool visible = true;
    MsoFillType type = msoFillSolid;
    Color fore = Color::of(ppFill);
    Color back = Color::of(ppBackground);
    float transparency = 0; ///< 0 opaque to 1 clear
    std::int32_t pattern = 0;
    std::int32_t gradientStyle = 0;
    std::int32_t gradientVariant = 0;

    friend bool operator==(const Fill&, const Fill&) = default;
};

/// An end of a line, by Office's numbers.
struct ArrowHead {
    std::int32_t style = 1;  ///< 1 (msoArrowheadNone) to 6
    std::int32_t length = 2; ///< 1 to 3
    std::int32_t width = 2;  ///< 1 to 3

    friend bool operator==(const ArrowHead&, const ArrowHead&) = default;
};

/// The outline of a shape.
struct Line {
    bool visible = true;
    float weight = 0.75F; ///< points
    Color color = Color::of(ppForeground);
    std::int32_t dashStyle = 1;
    Color back = Color::of(ppBackground); ///< of a patterned line
    std::int32_t pattern = -2;            ///< 1 to 48; -2 where there is none
    std::int32_t style = 1;               ///< MsoLineStyle, 1 to 5
    float transparency = 0;               ///< 0 opaque to 1 clear
    ArrowHead begin;
    ArrowHead end;

    friend bool operator==(const Line&, const Line&) = default;
};

/// The shadow of a shape; `type` is the preset (msoShadow1 ...), -2 when none was chosen.
struct Shadow {
    bool visible = false;
    std::int32_t type = -2;
    Color color = Color::of(ppShadow);
    float offsetX = 2; ///< points
    float offsetY = 2; ///< points
    bool obscured = false;
    float transparency = 0; ///< 0 opaque to 1 clear

    friend bool operator==(const Shadow&, const Shadow&) = default;
};

/// The third dimension of a shape; `preset` is the style (msoThreeD1 ...), -2 when none applies.
struct ThreeD {
    bool visible = false;
    std::int32_t preset = -2;
    float depth = 36; ///< points
    /// What a toolbar changes beside the depth, by Office's numbers.
    ///@{
    std::int32_t direction = 9; ///< msoExtrusionBottomRight
    std::int32_t lighting = 1;  ///< msoLightingTopLeft
    std::int32_t softness = 2;  ///< msoLightingNormal
    std::int32_t material = 1;  ///< msoMaterialMatte
    bool perspective = false;
    float rotationX = 0; ///< degrees, -90 to 90
    float rotationY = 0; ///< degrees, -90 to 90
    bool hasOwnColor = false;
    Color color = Color::of(ppFill);
    ///@}

    friend bool operator==(const ThreeD&, const ThreeD&) = default;
};

/// What makes a shape a WordArt object.
struct TextEffect {
    std::u16string text;
    std::u16string fontName = u"Arial Black";
    float fontSize = 36; ///< points
    bool bold = false;
    bool italic = false;
    std::int32_t preset = 0; ///< msoTextEffect1 is 0

    friend bool operator==(const TextEffect&, const TextEffect&) = default;
};

} // namespace simulator
