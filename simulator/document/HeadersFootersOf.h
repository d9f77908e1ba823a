#pragma once

#include "simulator/document/Presentation.h"

namespace simulator {

/// The headers and footers that a sheet of a presentation has: its own, or those of all that follow its master.
[[nodiscard]] const HeadersFooters& headersFootersOf(const Presentation& presentation, const Slide& sheet);
/// The same, to be changed: those of the sheet alone, or of all that follow a master.
[[nodiscard]] HeadersFooters& ownHeadersFooters(Presentation& presentation, Slide& sheet);
/// Takes away what a slide has of its own, and what a master has.
void clearHeadersFooters(Presentation& presentation, Slide& sheet);

} // namespace simulator
