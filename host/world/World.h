#pragma once

#include "automation/Unmoved.h"
#include "automation/observe/Observer.h"
#include "host/world/Files.h"
#include "host/world/ModuleClient.h"
#include "host/world/PowerPoint.h"
#include "host/world/Registry.h"

#include <functional>
#include <memory>

namespace host {

/// A computer with PowerPoint, the module and a learner, wherever the three live. A world is made for one scenario and
/// dropped after it; dropping it releases the module first.
class World : automation::Unmoved {
public:
    virtual ~World() = default;

    /// The module, created at the first use.
    [[nodiscard]] virtual ModuleClient& module() = 0;
    /// The host's process is killed: its module does nothing more, and the next use creates another.
    virtual void killHost() = 0;
    /// The folder in which the host works, with its trailing backslash; it exists.
    [[nodiscard]] virtual std::u16string hostFolder() const = 0;

    [[nodiscard]] virtual PowerPoint& powerPoint() = 0;
    [[nodiscard]] virtual Registry& registry() = 0;
    [[nodiscard]] virtual Files& files() = 0;

    /// What the module has opened and not closed again, in plain words; empty where all is well.
    [[nodiscard]] virtual std::vector<std::string> leftOpen() = 0;
};

using WorldPtr = std::unique_ptr<World>;

/// Makes a fresh world. Calls that leave the module pass through the observer, where one is given and the world can.
using WorldMaker = std::function<WorldPtr(const automation::ObserverPtr&)>;

} // namespace host
