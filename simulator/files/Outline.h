#pragma once

#include "simulator/document/Presentation.h"

#include <string>

namespace simulator {

/// The titles and body texts of a presentation as rich text, paragraphs indented by their level.
[[nodiscard]] std::string outlineAsRichText(const Presentation& presentation);

} // namespace simulator
