#pragma once

#include "simulator/document/Format.h"
#include "simulator/files/drawing/PropertyTable.h"

namespace simulator::drawing {

/// A fill, a gradient's style and variant and a pattern's number among it, from and to the properties of a shape.
[[nodiscard]] Fill readFill(const Looks& looks);
void writeFill(PropertyTable& properties, const Fill& fill);

} // namespace simulator::drawing
