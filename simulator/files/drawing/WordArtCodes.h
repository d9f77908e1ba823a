#pragma once

#include "simulator/document/Shape.h"
#include "simulator/files/drawing/PropertyTable.h"

namespace simulator::drawing {

/// True for the kind of a shape that draws its text as WordArt.
[[nodiscard]] bool isWordArt(std::uint16_t kind, const Looks& looks) noexcept;

/// WordArt, its preset apart, from and to the properties of a shape.
[[nodiscard]] TextEffect readEffect(const Looks& looks);
void writeEffect(PropertyTable& properties, const TextEffect& effect);

} // namespace simulator::drawing
