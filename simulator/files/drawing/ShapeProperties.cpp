#include "simulator/files/drawing/ShapeProperties.h"

#include "automation/Text.h"
#include "simulator/document/NewShape.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/FillCodes.h"
#include "simulator/files/drawing/FreeformCodes.h"
#include "simulator/files/drawing/PropertyIds.h"

namespace simulator::drawing {

namespace {

std::uint32_t emu(float points) {
    return code(double{points} * emuPerPoint);
}

void writeLine(PropertyTable& properties, const Line& line) {
    properties.setFlag(property::lineFlags, flag::lined, line.visible);
    properties.set(property::lineColor, codeOf(line.color));
    properties.set(property::lineWidth, emu(line.weight));
    properties.set(property::lineDashing, dashCodeOf(line.dashStyle));
}

void writeShadow(PropertyTable& properties, const Shadow& shadow) {
    properties.setFlag(property::shadowFlags, flag::shadowed, shadow.visible);
    properties.setFlag(property::shadowFlags, flag::shadowObscured, shadow.obscured);
    properties.set(property::shadowColor, codeOf(shadow.color));
    properties.set(property::shadowOffsetX, emu(shadow.offsetX));
    properties.set(property::shadowOffsetY, emu(shadow.offsetY));
}

void writeThreeD(PropertyTable& properties, const ThreeD& threeD) {
    properties.setFlag(property::extrusionFlags, flag::extruded, threeD.visible);
    properties.set(property::extrusionDepth, emu(threeD.depth));
}

void writeEffect(PropertyTable& properties, const TextEffect& effect) {
    properties.setText(property::effectText, effect.text);
    properties.setText(property::effectFont, effect.fontName);
    properties.set(property::effectSize, code(double{effect.fontSize} * fixedPoint));
    properties.setFlag(property::effectFlags, flag::effectText, true);
    properties.setFlag(property::effectFlags, flag::effectBold, effect.bold);
    properties.setFlag(property::effectFlags, flag::effectItalic, effect.italic);
}

std::uint32_t anchorCode(MsoVerticalAnchor anchor) noexcept {
    switch (anchor) {
    case msoAnchorTop: return 0;
    case msoAnchorMiddle: return 1;
    case msoAnchorBottom: return 2;
    case msoAnchorTopBaseline: return 6;
    case msoAnchorBottomBaseLine: return 7;
    }
    return 0;
}

std::uint32_t flowCode(MsoTextOrientation orientation) noexcept {
    switch (orientation) {
    case msoTextOrientationHorizontal: return 0;
    case msoTextOrientationVerticalFarEast: return 1;
    case msoTextOrientationUpward: return 2;
    case msoTextOrientationDownward: return 3;
    case msoTextOrientationHorizontalRotatedFarEast: return 4;
    case msoTextOrientationVertical: return 5;
    }
    return 0;
}

void writeLayout(PropertyTable& properties, const TextLayout& layout) {
    properties.set(property::textLeft, emu(layout.marginLeft));
    properties.set(property::textTop, emu(layout.marginTop));
    properties.set(property::textRight, emu(layout.marginRight));
    properties.set(property::textBottom, emu(layout.marginBottom));
    properties.set(property::wrapText, layout.wordWrap ? 0 : 2);
    properties.set(property::anchorText, anchorCode(layout.anchor));
    properties.set(property::textFlow, flowCode(layout.orientation));
    properties.setFlag(property::textFlags, flag::fitShapeToText, layout.autoSize == ppAutoSizeShapeToFitText);
}

void writeIdentity(PropertyTable& properties, const Shape& shape) {
    const std::u16string usual = std::u16string(newShape::baseName(shape)) + u" " + automation::decimal(shape.id);
    if (shape.name != usual) {
        properties.setText(property::name, shape.name);
    }
    if (!shape.alternativeText.empty()) {
        properties.setText(property::description, shape.alternativeText);
    }
    if (shape.formerGroup != 0) {
        properties.set(property::regroup, static_cast<std::uint32_t>(shape.formerGroup));
    }
    properties.setFlag(property::groupFlags, flag::hidden, !shape.visible);
    properties.setFlag(property::protection, flag::lockAspectRatio, shape.lockAspectRatio);
    properties.set(property::rotation, code(double{shape.rotation} * fixedPoint));
}

} // namespace

PropertyTable writeProperties(const Shape& shape) {
    PropertyTable properties;
    writeIdentity(properties, shape);
    if (shape.type == msoGroup) {
        return properties;
    }
    writeFill(properties, shape.fill);
    writeLine(properties, shape.line);
    writeShadow(properties, shape.shadow);
    writeThreeD(properties, shape.threeD);
    if (shape.text) {
        writeLayout(properties, shape.text->layout);
    }
    if (shape.textEffect) {
        writeEffect(properties, *shape.textEffect);
    }
    if (!shape.nodes.empty()) {
        writeCorners(properties, shape);
    }
    return properties;
}

} // namespace simulator::drawing
