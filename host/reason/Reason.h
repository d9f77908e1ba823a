#pragma once

#include "host/language/Expectation.h"
#include "host/reason/Trail.h"

namespace host::reason {

/// What has decided a verdict other than a plain success, in sentences, out of what the module has read during the
/// check; `reading.meaning` tells what to look for. Empty where nothing was read.
[[nodiscard]] std::string reasonOf(const Trail& trail, const Reading& reading);

} // namespace host::reason
