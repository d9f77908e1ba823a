#pragma once

#include "simulator/files/powerpoint/Origins.h"

namespace simulator::powerpoint {

/// Reads the parts of a presentation's file that are in force: the edits of the document are followed back from the
/// last one, each once. Raises DamagedPresentation, also where the presentation is encrypted.
[[nodiscard]] std::shared_ptr<PresentationOrigin> readObjects(std::string_view bytes);

} // namespace simulator::powerpoint
