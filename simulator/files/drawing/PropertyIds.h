#pragma once

#include <cstdint>

/// Properties of Office drawings by their published numbers, those of the object model.
namespace simulator::drawing {

namespace property {

enum : std::uint16_t {
    rotation = 0x0004,   ///< degrees, 16.16
    protection = 0x007F, ///< flags
    textLeft = 0x0081,   ///< margins of the text in EMU
    textTop = 0x0082,
    textRight = 0x0083,
    textBottom = 0x0084,
    wrapText = 0x0085,
    anchorText = 0x0087,
    textFlow = 0x0088,
    textFlags = 0x00BF,
    effectText = 0x00C0, ///< the text of WordArt
    effectSize = 0x00C3, ///< points, 16.16
    effectFont = 0x00C5,
    effectFlags = 0x00FF,
    picture = 0x0104,
    geometryLeft = 0x0140, ///< the coordinates in which the corners of a freeform stand
    geometryTop = 0x0141,
    geometryRight = 0x0142,
    geometryBottom = 0x0143,
    pathKind = 0x0144,
    vertices = 0x0145,
    segments = 0x0146,
    connections = 0x0151,
    adjustHandles = 0x0155,
    guides = 0x0156,
    inscribe = 0x0157,
    fillType = 0x0180,
    fillColor = 0x0181,
    fillOpacity = 0x0182, ///< 16.16
    fillBackColor = 0x0183,
    fillPictureName = 0x0187,
    fillAngle = 0x018B,  ///< degrees, 16.16
    fillFocus = 0x018C,  ///< percent
    fillToLeft = 0x018D, ///< 16.16, as the three that follow
    fillToTop = 0x018E,
    fillToRight = 0x018F,
    fillToBottom = 0x0190,
    fillShadeColors = 0x0197,
    fillFlags = 0x01BF,
    lineColor = 0x01C0,
    lineOpacity = 0x01C1, ///< 16.16
    lineBackColor = 0x01C2,
    lineType = 0x01C4,
    linePictureName = 0x01C6,
    lineWidth = 0x01CB, ///< EMU
    lineStyle = 0x01CD,
    lineDashing = 0x01CE,
    lineDashStyle = 0x01CF,
    lineBeginArrow = 0x01D0,
    lineEndArrow = 0x01D1,
    lineBeginArrowWidth = 0x01D2,
    lineBeginArrowLength = 0x01D3,
    lineEndArrowWidth = 0x01D4,
    lineEndArrowLength = 0x01D5,
    lineFlags = 0x01FF,
    shadowKind = 0x0200,
    shadowColor = 0x0201,
    shadowOpacity = 0x0204, ///< 16.16
    shadowOffsetX = 0x0205, ///< EMU
    shadowOffsetY = 0x0206,
    shadowFlags = 0x023F,
    extrusionGloss = 0x0280,   ///< 16.16
    extrusionDiffuse = 0x0281, ///< 16.16
    extrusionDepth = 0x0285,   ///< EMU
    extrusionColor = 0x0287,
    extrusionFlags = 0x02BF,
    extrusionTurnY = 0x02C0, ///< degrees, 16.16
    extrusionTurnX = 0x02C1,
    extrusionRendering = 0x02C9,
    extrusionSkewAngle = 0x02D0, ///< degrees, 16.16
    extrusionSkew = 0x02D1,      ///< percent
    ambientLight = 0x02D2,       ///< 16.16
    keyLightX = 0x02D3,
    keyLightY = 0x02D4,
    keyLight = 0x02D6, ///< 16.16
    fillLightX = 0x02D7,
    fillLightY = 0x02D8,
    fillLight = 0x02DA, ///< 16.16
    extrusionViewFlags = 0x02FF,
    master = 0x0301, ///< the placeholder of the master slide
    wrapPolygon = 0x0383,
    name = 0x0380,
    description = 0x0381,
    regroup = 0x0388,
    tableFlags = 0x039F, ///< of a group that is a table
    rowHeights = 0x03A0, ///< the least ones, in master units
    groupFlags = 0x03BF,
};

/// Properties that hold flags, each with a bit above it that makes it count.
constexpr bool areFlags(std::uint16_t id) noexcept {
    constexpr std::uint16_t lastOfSet = 0x3F;
    return (id & lastOfSet) == lastOfSet;
}

} // namespace property

/// Bits of the properties that are flags; each counts where the bit sixteen places above it is set.
namespace flag {

enum : std::uint16_t {
    lockAspectRatio = 0x0080,
    fitShapeToText = 0x0002,
    effectItalic = 0x0010,
    effectBold = 0x0020,
    effectText = 0x4000,
    filled = 0x0010,
    lined = 0x0008,
    shadowObscured = 0x0001,
    shadowed = 0x0002,
    extruded = 0x0008,
    extrusionColored = 0x0002,
    extrusionMetallic = 0x0004,
    extrusionParallel = 0x0004,
    hidden = 0x0002,
};

/// Bits of a table's flags, which all count.
enum : std::uint32_t { table = 0x0001, rightToLeftTable = 0x0004 };

} // namespace flag

/// Bits of a shape's own record.
namespace shapeFlag {

enum : std::uint32_t {
    group = 0x0001,
    child = 0x0002,
    patriarch = 0x0004,
    deleted = 0x0008,
    horizontalFlip = 0x0040,
    verticalFlip = 0x0080,
    connector = 0x0100,
    anchored = 0x0200,
    background = 0x0400,
    typed = 0x0800,
    hasMaster = 0x0020,
};

} // namespace shapeFlag

/// Kinds of shapes that are no AutoShapes.
namespace kind {

enum : std::uint16_t {
    freeform = 0,
    rectangle = 1,
    line = 20,
    firstEffectText = 24,
    lastEffectText = 31,
    straightConnector = 32,
    firstElbow = 33,
    elbow = 34,
    firstCurve = 37,
    curve = 38,
    lastConnector = 40,
    pictureFrame = 75,
    firstWordArt = 136,
    lastWordArt = 175,
    hostControl = 201,
    textBox = 202,
};

} // namespace kind

inline constexpr double fixedPoint = 65536; ///< of 16.16 numbers
inline constexpr double emuPerPoint = 12700;
inline constexpr float masterUnitsPerPoint = 8;

} // namespace simulator::drawing
