#pragma once

#include "simulator/document/Presentation.h"

namespace simulator::powerpoint {

/// The presentation that the bytes of a file hold; it keeps what the file says of it. Raises DamagedPresentation.
[[nodiscard]] PresentationPtr readPresentation(std::string_view bytes);

} // namespace simulator::powerpoint
