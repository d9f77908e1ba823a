#pragma once

#include "simulator/document/Presentation.h"

namespace simulator::powerpoint {

/// The bytes of a file that holds a presentation. What it was read from stays as it was where nothing has changed; the
/// same presentation gives the same bytes.
[[nodiscard]] std::string writePresentation(const Presentation& presentation);

} // namespace simulator::powerpoint
