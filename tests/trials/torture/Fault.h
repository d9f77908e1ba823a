#pragma once

#include "automation/observe/FaultInjector.h"
#include "host/world/World.h"
#include "tests/trials/Host.h"

namespace trials::torture {

/// What makes calls fail, and whether it has.
struct Strike {
    automation::ObserverPtr observer;
    std::function<bool()> hasStruck;
};

/// A way in which a call fails.
struct Fault {
    using Lasting = automation::FaultInjector::Lasting;

    /// The last three are those of a PowerPoint in a process of its own: it dies in the call, refuses it (once it takes
    /// it when it is made again), or answers it late.
    enum class Kind : std::uint8_t { Exception, Busy, Dead, OutOfMemory, AccessDenied, Killed, Dies, Refuses, Late };

    Kind kind;
    Lasting lasting;

    /// True for the calls that can fail so.
    [[nodiscard]] bool fits(automation::Border border) const;
    /// PowerPoint's process ends.
    [[nodiscard]] bool isDeath() const noexcept { return kind == Kind::Killed || kind == Kind::Dies; }
    /// The call is taken in the end: the host must not notice.
    [[nodiscard]] bool isDelay() const noexcept {
        return kind == Kind::Late || (kind == Kind::Refuses && lasting == Lasting::Once);
    }
    /// What such a call raises.
    [[nodiscard]] const automation::Error& error() const;
    /// In words: `server busy from there on`.
    [[nodiscard]] std::string display() const;

    /// Makes the call at a position (from 1) fail in a world, which must outlive the observer.
    [[nodiscard]] Strike at(std::size_t position, World& world) const;

    /// Makes the process of a world's PowerPoint misbehave at a call, counted from the next one that it takes (1).
    void arm(std::size_t position) const;
    /// Has it behave again.
    static void disarm();
    /// True where the process has met the call at which it was to misbehave.
    [[nodiscard]] bool hasStruck(World& world) const;

    /// Every fault of calls in this process, each once and from there on; a PowerPoint killed stays dead in any case.
    [[nodiscard]] static const std::vector<Fault>& all();
    /// Every fault of a PowerPoint in a process of its own.
    [[nodiscard]] static const std::vector<Fault>& remote();
};

} // namespace trials::torture
