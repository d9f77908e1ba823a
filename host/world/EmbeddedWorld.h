#pragma once

#include "automation/observe/Observer.h"
#include "host/world/World.h"

namespace host {

/// A world in this process: the embedded PowerPoint on a machine in memory, with its files in a folder of their own
/// that goes with the world. Calls that leave the module pass through `observer`, where one is given.
[[nodiscard]] WorldPtr makeEmbeddedWorld(const automation::ObserverPtr& observer = nullptr);

} // namespace host
