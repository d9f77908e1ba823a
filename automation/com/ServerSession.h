#pragma once

#include "automation/com/MemberIds.h"

#include <memory>

namespace automation::com {

/// What all objects that descend from the same one know of the process behind them.
struct ServerSession {
    MemberIds ids;
    bool isGone = false; ///< the process has ended: none of the objects is called again
};

using ServerSessionPtr = std::shared_ptr<ServerSession>;

} // namespace automation::com
