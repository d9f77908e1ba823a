#pragma once

#include "simulator/document/Format.h"
#include "simulator/files/drawing/PropertyTable.h"

namespace simulator::drawing {

/// A fill, a gradient's style and variant and a pattern's number among it, from and to the properties of a shape.
[[nodiscard]] Fill readFill(const Looks& looks);
/// A pattern by its number from 1, and the name that files give it; -2 is that of a name that is none.
[[nodiscard]] std::int32_t patternNamed(std::u16string_view name);
[[nodiscard]] std::u16string_view nameOfPattern(std::int32_t pattern);
void writeFill(PropertyTable& properties, const Fill& fill);

} // namespace simulator::drawing
