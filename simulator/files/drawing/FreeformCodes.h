#pragma once

#include "simulator/document/Shape.h"
#include "simulator/files/drawing/PropertyTable.h"

namespace simulator::drawing {

/// The corners of a freeform.
struct Corners {
    std::vector<Node> nodes; ///< in points on the slide
    bool isClosed = false;
};

/// Reads the corners of a freeform that lies in a frame; none where they follow from formulas.
[[nodiscard]] Corners readCorners(const Looks& looks, const Frame& frame);
void writeCorners(PropertyTable& properties, const Shape& shape);

/// True for the properties that describe a path together.
[[nodiscard]] bool isOfPath(std::uint16_t id) noexcept;

} // namespace simulator::drawing
