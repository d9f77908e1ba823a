#pragma once

#include "simulator/document/TextFormat.h"
#include "simulator/files/drawing/PropertyTable.h"

namespace simulator::drawing {

/// How a text stands in its shape, from and to the properties of the shape.
[[nodiscard]] TextLayout readLayout(const Looks& looks);
void writeLayout(PropertyTable& properties, const TextLayout& layout);

} // namespace simulator::drawing
