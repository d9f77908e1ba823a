#pragma once

#include "automation/LateBound.h"

namespace trials {

/// The controls of the stand-in of PowerPoint that runs on this desktop, late-bound. Raises CannotCreateObject (429)
/// where none runs.
[[nodiscard]] automation::LateBound standIn();

} // namespace trials
