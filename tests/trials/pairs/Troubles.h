#pragma once

#include "tests/trials/memory/ScarceWorld.h"
#include "tests/trials/torture/Fault.h"

#include <span>

namespace trials::pairs {

/// What fails in an operation: a call in one of its ways or, without a fault, memory.
struct Trouble {
    std::optional<torture::Fault> fault;
    bool lasts = false;
    std::size_t position = 0; ///< of the call, or of the allocation, from 1

    /// What it raises where nobody makes anything else of it.
    [[nodiscard]] std::int32_t number() const;
    /// True where the two are of one kind.
    [[nodiscard]] bool isLike(const Trouble& other) const;
    /// In words: `server busy from there on at call 12`.
    [[nodiscard]] std::string display() const;
};

/// Has several troubles strike in one operation; must outlive the world.
class Troubles final : public torture::Tampering, public automation::Observer {
public:
    /// Up to where an operation has come: calls that have left the module, allocations that it has asked for.
    struct Progress {
        std::size_t calls = 0;
        std::size_t asked = 0;
    };

    explicit Troubles(std::vector<Trouble> troubles);

    automation::Value around(const automation::Crossing& crossing, const Next& next) override;
    automation::ObserverPtr observer() override { return {automation::ObserverPtr(), this}; }
    void begin(World& world) override;
    std::size_t calls(World& world) override;
    bool hasStruck(World& world) override;
    void end(World& world) override;

    /// A world whose module meets them.
    [[nodiscard]] WorldPtr meetIn(WorldPtr world) { return memory::makeScarceWorld(std::move(world), scarcity_); }

    /// When the first of them struck, and when the operation was over.
    ///@{
    [[nodiscard]] Progress struck() const noexcept { return struck_; }
    [[nodiscard]] Progress ended() const noexcept { return ended_; }
    ///@}
    /// Of the operation's calls, in order.
    [[nodiscard]] const std::vector<automation::Border>& borders() const noexcept { return borders_; }

private:
    automation::Value pass(std::span<const torture::Strike> strikes, const automation::Crossing& crossing,
                           const Next& next);
    [[nodiscard]] bool hasFirstStruck() const;

    std::vector<Trouble> troubles_;
    std::vector<torture::Strike> strikes_; ///< of calls, in order
    memory::Scarcity scarcity_;
    std::vector<automation::Border> borders_;
    bool isUnderWay_ = false; ///< the operation
    Progress struck_;
    Progress ended_;
};

} // namespace trials::pairs
