#pragma once

#include "simulator/document/Slide.h"
#include "simulator/files/drawing/DrawingIds.h"
#include "simulator/files/records/Record.h"

namespace simulator::drawing {

/// Has the connectors of a slide hold on to the shapes that the rules of its drawing name.
void readConnections(const records::Record& art, const DrawingIds& ids, Slide& slide);
/// Puts rules for the connectors of a slide into its drawing, unless those that are there say the same already.
void writeConnections(records::Record& art, const DrawingIds& ids, const Slide& slide);

} // namespace simulator::drawing
