#include "simulator/files/drawing/FillCodes.h"

#include "simulator/files/bytes/ColorBits.h"
#include "simulator/files/bytes/Tables.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/PropertyIds.h"

#include <algorithm>
#include <array>

namespace simulator::drawing {

namespace {

namespace filling {
enum : std::uint32_t {
    Solid = 0,
    Pattern = 1,
    Texture = 2,
    Picture = 3,
    Shade = 4,
    ShadeCenter = 5,
    ShadeShape = 6,
    ShadeScale = 7,
    ShadeTitle = 8,
    Background = 9,
};
} // namespace filling

constexpr std::int32_t mixed = -2;
constexpr std::int32_t fromCorner = 5;
constexpr std::int32_t fromTitle = 6;
constexpr std::int32_t fromCenter = 7;

/// Angles of straight gradients by their style, from 1: horizontal, vertical, diagonal up, diagonal down.
constexpr std::array<std::int32_t, 4> angles{0, -90, -135, -45};
/// Where the middle of a gradient lies by its variant, from 1, in percent.
constexpr std::array<std::int32_t, 4> focuses{100, 0, 50, -50};

constexpr std::array<std::u16string_view, 48> patterns{u"5%",
                                                       u"10%",
                                                       u"20%",
                                                       u"25%",
                                                       u"30%",
                                                       u"40%",
                                                       u"50%",
                                                       u"60%",
                                                       u"70%",
                                                       u"75%",
                                                       u"80%",
                                                       u"90%",
                                                       u"Dark horizontal",
                                                       u"Dark vertical",
                                                       u"Dark downward diagonal",
                                                       u"Dark upward diagonal",
                                                       u"Small checker board",
                                                       u"Trellis",
                                                       u"Light horizontal",
                                                       u"Light vertical",
                                                       u"Light downward diagonal",
                                                       u"Light upward diagonal",
                                                       u"Small grid",
                                                       u"Dotted diamond",
                                                       u"Wide downward diagonal",
                                                       u"Wide upward diagonal",
                                                       u"Dashed upward diagonal",
                                                       u"Dashed downward diagonal",
                                                       u"Narrow vertical",
                                                       u"Narrow horizontal",
                                                       u"Dashed vertical",
                                                       u"Dashed horizontal",
                                                       u"Large confetti",
                                                       u"Large grid",
                                                       u"Horizontal brick",
                                                       u"Large checker board",
                                                       u"Small confetti",
                                                       u"Zig zag",
                                                       u"Solid diamond",
                                                       u"Diagonal brick",
                                                       u"Outlined diamond",
                                                       u"Plaid",
                                                       u"Sphere",
                                                       u"Weave",
                                                       u"Dotted grid",
                                                       u"Divot",
                                                       u"Shingle",
                                                       u"Wave"};

MsoFillType typeOf(std::uint32_t code) noexcept {
    switch (code) {
    case filling::Pattern: return msoFillPatterned;
    case filling::Texture: return msoFillTextured;
    case filling::Picture: return msoFillPicture;
    case filling::Shade:
    case filling::ShadeCenter:
    case filling::ShadeShape:
    case filling::ShadeScale:
    case filling::ShadeTitle: return msoFillGradient;
    case filling::Background: return msoFillBackground;
    default: return msoFillSolid;
    }
}

/// Place of a value in a table, from 1; mixed where it is not in it.
template <typename Table, typename Value> std::int32_t placeOf(const Table& table, const Value& value) {
    const auto place = files::placeIn(table, value);
    return place ? static_cast<std::int32_t>(*place) + 1 : mixed;
}

std::int32_t whole(const Looks& looks, std::uint16_t id) {
    return static_cast<std::int32_t>(looks.number(id, 0));
}

void readGradient(const Looks& looks, std::uint32_t type, Fill& fill) {
    const std::int32_t byFocus = placeOf(focuses, whole(looks, property::fillFocus));
    fill.gradientStyle = mixed;
    fill.gradientVariant = byFocus;
    if (type == filling::Shade || type == filling::ShadeScale) {
        fill.gradientStyle = placeOf(angles, nearest(looks.fixed(property::fillAngle, 0)));
    } else if (type == filling::ShadeTitle) {
        fill.gradientStyle = fromTitle;
    } else {
        const float right = looks.fixed(property::fillToLeft, 0);
        const float down = looks.fixed(property::fillToTop, 0);
        const bool inCorner = (right == 0 || right == 1) && (down == 0 || down == 1);
        fill.gradientStyle = inCorner ? fromCorner : fromCenter;
        fill.gradientVariant = inCorner ? 1 + (right == 1 ? 1 : 0) + (down == 1 ? 2 : 0) : byFocus;
    }
}

void writeTarget(PropertyTable& properties, double right, double down) {
    properties.set(property::fillToLeft, code(right * fixedPoint));
    properties.set(property::fillToTop, code(down * fixedPoint));
    properties.set(property::fillToRight, code(right * fixedPoint));
    properties.set(property::fillToBottom, code(down * fixedPoint));
}

void writeGradient(PropertyTable& properties, const Fill& fill) {
    const auto variant = static_cast<std::size_t>(std::clamp(fill.gradientVariant, 1, 4) - 1);
    const bool isStraight = fill.gradientStyle < fromCorner;
    properties.set(property::fillType, isStraight                        ? filling::ShadeScale
                                       : fill.gradientStyle == fromTitle ? filling::ShadeTitle
                                                                         : filling::ShadeCenter);
    if (isStraight) {
        const auto style = static_cast<std::size_t>(std::max(fill.gradientStyle, 1) - 1);
        properties.set(property::fillAngle, code(angles.at(style) * fixedPoint));
    } else if (fill.gradientStyle == fromCorner) {
        writeTarget(properties, variant % 2 == 1 ? 1 : 0, variant >= 2 ? 1 : 0);
    } else if (fill.gradientStyle == fromCenter) {
        writeTarget(properties, 0.5, 0.5);
    }
    properties.set(property::fillFocus,
                   static_cast<std::uint32_t>(fill.gradientStyle == fromCorner ? focuses[0] : focuses.at(variant)));
}

std::uint32_t plainCode(MsoFillType type) noexcept {
    switch (type) {
    case msoFillPatterned: return filling::Pattern;
    case msoFillTextured: return filling::Texture;
    case msoFillPicture: return filling::Picture;
    case msoFillBackground: return filling::Background;
    default: return filling::Solid;
    }
}

} // namespace

std::int32_t patternNamed(std::u16string_view name) {
    return placeOf(patterns, name);
}

std::u16string_view nameOfPattern(std::int32_t pattern) {
    return patterns.at(static_cast<std::size_t>(pattern) - 1);
}

Fill readFill(const Looks& looks) {
    constexpr std::uint32_t white = files::rgbBits;
    Fill fill;
    const std::uint32_t type = looks.number(property::fillType, filling::Solid);
    fill.type = typeOf(type);
    fill.visible = looks.flag(property::fillFlags, flag::filled, true);
    fill.fore = colorOf(looks.number(property::fillColor, white), Color::of(ppFill));
    fill.back = colorOf(looks.number(property::fillBackColor, white), fill.fore);
    fill.transparency = 1 - looks.fixed(property::fillOpacity, 1);
    if (fill.type == msoFillPatterned) {
        fill.pattern = patternNamed(looks.text(property::fillPictureName));
    } else if (fill.type == msoFillGradient) {
        readGradient(looks, type, fill);
    }
    return fill;
}

void writeFill(PropertyTable& properties, const Fill& fill) {
    properties.setFlag(property::fillFlags, flag::filled, fill.visible);
    properties.set(property::fillColor, codeOf(fill.fore));
    properties.set(property::fillOpacity, code((1 - double{fill.transparency}) * fixedPoint));
    properties.set(property::fillBackColor, codeOf(fill.back));
    if (fill.type == msoFillGradient) {
        writeGradient(properties, fill);
        return;
    }
    properties.set(property::fillType, plainCode(fill.type));
    if (fill.type == msoFillPatterned && fill.pattern >= 1) {
        properties.setText(property::fillPictureName, nameOfPattern(fill.pattern));
    }
}

} // namespace simulator::drawing
