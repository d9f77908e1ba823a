#pragma once

#include "simulator/document/Format.h"
#include "simulator/files/drawing/PropertyTable.h"

namespace simulator::drawing {

/// A line, its dashes among it, from and to the properties of a shape.
[[nodiscard]] Line readLine(const Looks& looks);
void writeLine(PropertyTable& properties, const Line& line);

} // namespace simulator::drawing
