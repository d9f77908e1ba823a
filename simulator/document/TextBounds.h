#pragma once

#include "simulator/document/Shape.h"

namespace simulator {

/// Where a stretch of a shape's text stands on the slide, in points. An estimate: no font is measured here, every
/// character counts as half as wide as it is high.
[[nodiscard]] Frame textBounds(const TextStory& story, Span span, const Frame& shape);

} // namespace simulator
