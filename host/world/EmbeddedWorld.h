#pragma once

#include "automation/observe/Observer.h"
#include "host/world/World.h"

namespace simulator {
class Machine;
}

namespace host {

/// A world in this process: the embedded PowerPoint on a machine in memory, with its files in a folder of their own
/// that goes with the world.
class EmbeddedWorld : public World {
public:
    /// The machine as it stands, documents included.
    [[nodiscard]] virtual const simulator::Machine& machine() const noexcept = 0;
};

/// Calls that leave the module pass through `observer`, where one is given.
[[nodiscard]] std::unique_ptr<EmbeddedWorld> makeEmbeddedWorld(const automation::ObserverPtr& observer = nullptr);
/// The same with a PowerPoint that does as its documentation says, also where the questions take it otherwise.
[[nodiscard]] std::unique_ptr<EmbeddedWorld> makeDocumentedWorld(const automation::ObserverPtr& observer = nullptr);

} // namespace host
