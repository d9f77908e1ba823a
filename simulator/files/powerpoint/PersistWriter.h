#pragma once

#include "simulator/files/powerpoint/Origins.h"

namespace simulator::powerpoint {

/// The bytes of a file that holds these objects, as its only edit, and all else that `origin` has; `lastEdit` is the
/// record of the last edit.
[[nodiscard]] std::string writeObjects(const PersistObjects& objects, records::Record lastEdit,
                                       const PresentationOrigin& origin);

} // namespace simulator::powerpoint
