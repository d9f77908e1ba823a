#pragma once

#include "simulator/document/Format.h"
#include "simulator/files/drawing/PropertyTable.h"

/// The shadow of a shape, from and to its properties.
namespace simulator::drawing {

[[nodiscard]] Shadow readShadow(const Looks& looks);
void writeShadow(PropertyTable& properties, const Shadow& shadow);

} // namespace simulator::drawing
