#include "tests/trials/torture/Tampering.h"

#include "automation/LateBound.h"
#include "tests/trials/StandIn.h"

#include <utility>

namespace trials::torture {

/// Lets an observer be put in and taken out while the calls that it observes go on, and counts them.
class ObservedCalls::Switch final : public automation::Observer {
public:
    automation::Value around(const automation::Crossing& crossing, const Next& next) override {
        ++calls;
        return observer ? observer->around(crossing, next) : next();
    }

    automation::ObserverPtr observer;
    std::size_t calls = 0;
};

ObservedCalls::ObservedCalls(StrikeMaker makeStrike)
    : makeStrike_(std::move(makeStrike)), line_(std::make_shared<Switch>()) {}

automation::ObserverPtr ObservedCalls::observer() {
    return line_;
}

void ObservedCalls::begin(World& world) {
    strike_ = makeStrike_(world);
    line_->observer = strike_.observer;
    line_->calls = 0;
}

std::size_t ObservedCalls::calls(World& /*world*/) {
    return line_->calls;
}

bool ObservedCalls::hasStruck(World& /*world*/) {
    return !strike_.hasStruck || strike_.hasStruck();
}

void ObservedCalls::end(World& /*world*/) {
    line_->observer = nullptr;
}

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
