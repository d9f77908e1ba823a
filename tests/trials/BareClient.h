#pragma once

#include "tests/trials/trace/CallRecord.h"

#include <functional>

namespace trials {

/// A client that has nothing but COM: makes calls to the PowerPoint that runs on this desktop by IDispatch::Invoke,
/// looks a name up when it meets it first, and lets go of an object after its last call. Raises CannotCreateObject
/// (429) where none runs.
[[nodiscard]] std::function<void()> bareClient(const std::vector<trace::RecordedCall>& calls);

} // namespace trials
