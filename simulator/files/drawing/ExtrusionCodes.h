#pragma once

#include "simulator/document/Format.h"
#include "simulator/files/drawing/PropertyTable.h"

namespace simulator::drawing {

/// The third dimension of a shape, from and to its properties. The format keeps what a setting does (where lights
/// stand, how they shine, which way a shape is cast), not its number: the nearest is read.
[[nodiscard]] ThreeD readThreeD(const Looks& looks);
void writeThreeD(PropertyTable& properties, const ThreeD& threeD);

} // namespace simulator::drawing
