#pragma once

#include "host/reason/Topic.h"

namespace host::reason {

/// The marks that the module has read on a slide, in order, and which of those that it has given are not there, where
/// the topic names some only of these: `Slide 1, from back to front: ZOR1 and shape 2 without a mark. ZOR2 is missing.`
/// Empty where none was read.
[[nodiscard]] std::string shapesOn(const Path& slide, const Trail& trail, const Topic& topic);

/// The same of the slides of a presentation.
[[nodiscard]] std::string slidesIn(const Trail& trail);

} // namespace host::reason
