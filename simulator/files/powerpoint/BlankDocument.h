#pragma once

#include "simulator/files/powerpoint/Origins.h"

namespace simulator::powerpoint {

/// The file of a presentation without slides, with one master: what a presentation that comes from no file is written
/// over.
[[nodiscard]] const std::shared_ptr<const PresentationOrigin>& blankDocument();

/// What that file says of its master.
[[nodiscard]] const std::shared_ptr<const SlideOrigin>& blankMaster();

/// A sheet without shapes; a slide and a title master on a master.
[[nodiscard]] records::Record blankSheet(SheetKind kind, std::uint32_t master);

} // namespace simulator::powerpoint
