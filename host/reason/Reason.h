#pragma once

#include "host/language/Expectation.h"
#include "host/reason/Trail.h"

namespace host::reason {

/// What has decided a verdict other than a plain success, in sentences, out of what the module has read during the
/// check; `reading.meaning` tells what to look for. Where it speaks of a change, what was delivered is said as well, of
/// the values that are known so, as `valuesStated` has them. Empty where nothing was read.
[[nodiscard]] std::string reasonOf(const Trail& trail, const Reading& reading,
                                   const std::map<std::string, automation::Value>& delivered);

} // namespace host::reason
