#pragma once

#include "simulator/files/powerpoint/Origins.h"

/// What a document says of itself apart from its slides: their size, its tags, whether shapes snap to the grid.
namespace simulator::powerpoint {

/// Raises DamagedPresentation.
void readSettings(const records::Record& document, Presentation& presentation);
/// Writes into a document what has changed since it was read.
void writeSettings(records::Record& document, const Presentation& presentation, const PresentationOrigin& origin);

} // namespace simulator::powerpoint
