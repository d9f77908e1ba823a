#pragma once

#include "automation/com/Ole.h"

#include <functional>

namespace automation::com {

/// Makes a call until the other process takes it: one that it refuses because it is busy is made again after short,
/// growing waits, for two seconds at most, and not at all inside WithoutRetry. Any other outcome is final.
[[nodiscard]] HRESULT untilTaken(const std::function<HRESULT()>& call);

} // namespace automation::com
