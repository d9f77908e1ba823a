#pragma once

#include "simulator/document/Shape.h"
#include "simulator/files/drawing/PropertyTable.h"

namespace simulator::drawing {

/// The table that a group with these items is; nothing where it is none, or its cells lie otherwise than in a table.
[[nodiscard]] std::optional<Table> readTable(const PropertyTable& properties, const std::vector<ShapePtr>& items);
/// What makes a group a table; these properties stand apart from the others of a shape.
[[nodiscard]] PropertyTable writeTable(const Table& table);

} // namespace simulator::drawing
