#pragma once

#include "host/world/World.h"
#include "tests/trials/Host.h"
#include "tests/trials/memory/ScarceMemory.h"
#include "tests/trials/torture/Tampering.h"

namespace trials::memory {

/// Memory fails in one operation of the module: in the first that is called once it has begun. What the system does for
/// the module it does with memory of its own. Must outlive the world.
class Scarcity final : public torture::Tampering, public automation::Observer {
public:
    /// At the n-th allocation; at 0 none fails.
    Scarcity(std::size_t position, ScarceMemory::Lasting lasting) : position_(position), lasting_(lasting) {}

    automation::Value around(const automation::Crossing& crossing, const Next& next) override {
        if (isUnderWay_ && askedBefore_ == 0) {
            askedBefore_ = ScarceMemory::asked();
        }
        if (crossing.border == automation::Border::Automation) {
            return next();
        }
        const PlentyOfMemory plenty;
        return next();
    }
    automation::ObserverPtr observer() override { return {automation::ObserverPtr(), this}; }
    void begin(World& /*world*/) override { isDue_ = true; }
    /// Allocations, not calls.
    std::size_t calls(World& /*world*/) override { return asked_; }
    bool hasStruck(World& /*world*/) override { return position_ == 0 || hasStruck_; }
    void end(World& /*world*/) override {}

    /// Those before the first call that leaves the module.
    [[nodiscard]] std::size_t askedBefore() const noexcept { return askedBefore_; }

    /// Calls the module. What it raises leaves as an automation error, once memory is there again.
    template <typename Call> void during(const Call& call) {
        if (!std::exchange(isDue_, false)) {
            return call();
        }
        isUnderWay_ = true;
        const ScarceStep step(position_, lasting_, call);
        isUnderWay_ = false;
        asked_ = step.asked;
        hasStruck_ = step.hasStruck;
        if (step.error) {
            throw automation::Error(*step.error);
        }
    }

private:
    std::size_t position_;
    ScarceMemory::Lasting lasting_;
    bool isDue_ = false;
    bool isUnderWay_ = false;
    std::size_t askedBefore_ = 0;
    std::size_t asked_ = 0;
    bool hasStruck_ = false;
};

/// A world whose module meets scarce memory; `scarcity` must outlive it.
[[nodiscard]] WorldPtr makeScarceWorld(WorldPtr world, Scarcity& scarcity);

} // namespace trials::memory
