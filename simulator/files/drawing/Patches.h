#pragma once

#include "simulator/document/Shape.h"
#include "simulator/files/drawing/PropertyTable.h"

/// Carries a change of a shape into the record that it was read from: `before` and `now` are the shape as it was read
/// and as it is, written afresh; where they agree the record stays as it is.
namespace simulator::drawing {

void patchHead(records::Record& record, const records::Record& before, const records::Record& now);
void patchProperties(records::Record& record, const PropertyTable& before, const PropertyTable& now);
/// `always` where the coordinates around the shape have changed.
void patchPlace(records::Record& record, const records::Record& before, const records::Record& now, bool always);
void patchClientData(records::Record& record, const Shape& asRead, const Shape& shape, const records::Record& before,
                     const records::Record& now);

} // namespace simulator::drawing
