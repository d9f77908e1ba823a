#pragma once

#include "simulator/document/Shape.h"
#include "simulator/files/drawing/PropertyTable.h"

/// The numbers of gallery presets (WordArt, shadow, third dimension). The format keeps what a preset does to a shape,
/// not its number: the number stands in a tag with data, and counts as long as the properties are those that were
/// written with it.
namespace simulator::drawing::preset {

/// Gives a shape the presets that its record has a tag for.
void read(const records::Record& record, const PropertyTable& properties, Shape& shape);
/// Puts the tag into the record of a shape, or takes it away where there is nothing to say.
void write(records::Record& record, const Shape& shape);

} // namespace simulator::drawing::preset
