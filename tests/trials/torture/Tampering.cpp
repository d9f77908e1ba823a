#include "tests/trials/torture/Tampering.h"

#include "tests/trials/StandIn.h"

namespace trials::torture {

void RemoteCalls::begin(World& /*world*/) {
    before_ = callsOfStandIn();
    if (fault_ != nullptr) {
        fault_->arm(position_);
    }
}

std::size_t RemoteCalls::calls(World& /*world*/) {
    try {
        return callsOfStandIn() - before_;
    } catch (const automation::Error&) {
        return 0;
    }
}

bool RemoteCalls::hasStruck(World& world) {
    return fault_ == nullptr || fault_->hasStruck(world);
}

void RemoteCalls::end(World& world) {
    if (fault_ != nullptr && world.powerPoint().window() != 0) {
        Fault::disarm();
    }
}

} // namespace trials::torture
