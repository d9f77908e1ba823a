#pragma once

#include "simulator/document/Shape.h"
#include "simulator/files/drawing/PropertyTable.h"

namespace simulator::drawing {

/// All that a shape says of itself as properties.
[[nodiscard]] PropertyTable writeProperties(const Shape& shape);

} // namespace simulator::drawing
