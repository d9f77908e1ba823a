#pragma once

#include "automation/LateBound.h"

namespace host {

/// The controls of the stand-in that runs on this desktop: what it counts, and can be made to do. Raises
/// CannotCreateObject (429) where another PowerPoint runs, or none.
[[nodiscard]] automation::LateBound standIn();

/// True where the PowerPoint that runs is the stand-in.
[[nodiscard]] bool isStandInRunning();

} // namespace host
