#include "simulator/files/drawing/ShapeProperties.h"

#include "simulator/document/NewShape.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/ExtrusionCodes.h"
#include "simulator/files/drawing/FillCodes.h"
#include "simulator/files/drawing/FreeformCodes.h"
#include "simulator/files/drawing/LayoutCodes.h"
#include "simulator/files/drawing/LineCodes.h"
#include "simulator/files/drawing/PropertyIds.h"
#include "simulator/files/drawing/ShadowCodes.h"
#include "simulator/files/drawing/WordArtCodes.h"

namespace simulator::drawing {

namespace {

void writeIdentity(PropertyTable& properties, const Shape& shape) {
    if (shape.name != newShape::usualName(shape)) {
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
    if (shape.isComposed()) {
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
