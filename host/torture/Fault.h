#pragma once

#include "automation/observe/FaultInjector.h"
#include "host/world/World.h"

namespace host::torture {

/// A way in which a call fails.
struct Fault {
    using Lasting = automation::FaultInjector::Lasting;

    enum class Kind : std::uint8_t { Exception, Busy, Dead, OutOfMemory, AccessDenied, Killed };

    Kind kind;
    Lasting lasting;

    /// True for the calls that can fail so.
    [[nodiscard]] bool fits(automation::Border border) const noexcept;
    /// What such a call raises.
    [[nodiscard]] const automation::Error& error() const;
    /// In words: `server busy from there on`.
    [[nodiscard]] std::string display() const;

    /// Makes the call at a position (from 1) fail in a world, which must outlive the observer.
    [[nodiscard]] automation::ObserverPtr at(std::size_t position, World& world) const;

    /// Every fault there is, each once and from there on; a PowerPoint killed stays dead in any case.
    [[nodiscard]] static const std::vector<Fault>& all();
};

} // namespace host::torture
