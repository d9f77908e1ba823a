#include "tests/trials/torture/Tampering.h"

#include "automation/LateBound.h"
#include "tests/trials/StandIn.h"

namespace trials::torture {

void RemoteCalls::begin(World& /*world*/) {
    before_ = standIn().get(u"Calls").to<std::int32_t>();
    if (fault_ != nullptr) {
        fault_->arm(position_);
    }
}

std::size_t RemoteCalls::calls(World& /*world*/) {
    try {
        return static_cast<std::size_t>(standIn().get(u"Calls").to<std::int32_t>() - before_);
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
