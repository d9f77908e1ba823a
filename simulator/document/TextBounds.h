#pragma once

#include "simulator/document/Shape.h"

namespace simulator {

/// Where a stretch of a shape's text stands on the slide, in points: estimated, since no font is measured here.
[[nodiscard]] Frame textBounds(const TextStory& story, Span span, const Frame& shape);

} // namespace simulator
