#pragma once

#include "simulator/document/Format.h"
#include "simulator/files/drawing/PropertyTable.h"

/// What lifts a shape off its slide, from and to its properties.
namespace simulator::drawing {

[[nodiscard]] Shadow readShadow(const Looks& looks);
void writeShadow(PropertyTable& properties, const Shadow& shadow);
[[nodiscard]] ThreeD readThreeD(const Looks& looks);
void writeThreeD(PropertyTable& properties, const ThreeD& threeD);

} // namespace simulator::drawing
