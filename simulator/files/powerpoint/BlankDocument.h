#pragma once

#include "simulator/files/powerpoint/Origins.h"

namespace simulator::powerpoint {

/// The file of a presentation without slides, with one master: what a presentation that comes from no file is written
/// over.
[[nodiscard]] const std::shared_ptr<const PresentationOrigin>& blankDocument();

/// A slide without shapes, on the master of the blank document or on another one.
[[nodiscard]] records::Record blankSlide(std::uint32_t master);

} // namespace simulator::powerpoint
