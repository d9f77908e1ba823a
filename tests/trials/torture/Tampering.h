#pragma once

#include "automation/Unmoved.h"
#include "tests/trials/torture/Fault.h"

namespace trials::torture {

/// What is done to the calls that leave the module in one operation, and after it until the module is left.
class Tampering : automation::Unmoved {
public:
    virtual ~Tampering() = default;

    /// What the world's calls are to pass through; null where they need not.
    [[nodiscard]] virtual automation::ObserverPtr observer() { return nullptr; }
    /// The operation begins.
    virtual void begin(World& world) = 0;
    /// Calls since it has begun.
    [[nodiscard]] virtual std::size_t calls(World& world) = 0;
    /// True where a call has been tampered with, or none was to be.
    [[nodiscard]] virtual bool hasStruck(World& world) = 0;
    /// The module has been left: nothing fails any more.
    virtual void end(World& world) = 0;
};

/// Has the calls of a world in this process pass through an observer; must outlive the world.
class ObservedCalls final : public Tampering, public automation::Observer {
public:
    explicit ObservedCalls(std::function<Strike(World&)> makeStrike) : makeStrike_(std::move(makeStrike)) {}
    automation::Value around(const automation::Crossing& crossing, const Next& next) override {
        ++calls_;
        return strike_.observer ? strike_.observer->around(crossing, next) : next();
    }
    automation::ObserverPtr observer() override { return {automation::ObserverPtr(), this}; }
    void begin(World& world) override {
        strike_ = makeStrike_(world);
        calls_ = 0;
    }
    std::size_t calls(World& /*world*/) override { return calls_; }
    bool hasStruck(World& /*world*/) override { return !strike_.hasStruck || strike_.hasStruck(); }
    void end(World& /*world*/) override { strike_ = {}; }

private:
    std::function<Strike(World&)> makeStrike_;
    Strike strike_;
    std::size_t calls_ = 0;
};

/// Has a PowerPoint in a process of its own misbehave, where a fault is given, at one of the calls that reach it.
class RemoteCalls final : public Tampering {
public:
    RemoteCalls() = default;
    RemoteCalls(const Fault& fault, std::size_t position) : fault_(&fault), position_(position) {}

    void begin(World& world) override;
    /// 0 where PowerPoint does not answer any more.
    std::size_t calls(World& world) override;
    bool hasStruck(World& world) override;
    void end(World& world) override;

private:
    const Fault* fault_ = nullptr;
    std::size_t position_ = 0;
    std::size_t before_ = 0;
};

} // namespace trials::torture
