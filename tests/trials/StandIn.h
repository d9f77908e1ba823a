#pragma once

#include "automation/LateBound.h"

namespace trials {

/// The controls of the stand-in of PowerPoint that runs on this desktop, late-bound. Raises CannotCreateObject (429)
/// where none runs.
[[nodiscard]] automation::LateBound standIn();

/// Calls of the object model so far.
[[nodiscard]] inline std::size_t callsOfStandIn() {
    return static_cast<std::size_t>(standIn().get(u"Calls").to<std::int32_t>());
}

/// Calls of other processes that have reached a stand-in, by what they ask for.
struct RemoteCalls {
    std::int32_t invokes = 0;
    std::int32_t lookUps = 0;
    std::int32_t queries = 0; ///< for an interface
    std::int32_t releases = 0;
    std::int32_t others = 0;

    bool operator==(const RemoteCalls&) const = default;
    RemoteCalls operator-(const RemoteCalls& before) const noexcept {
        return {invokes - before.invokes, lookUps - before.lookUps, queries - before.queries,
                releases - before.releases, others - before.others};
    }
    [[nodiscard]] std::int32_t all() const noexcept { return invokes + lookUps + queries + releases + others; }
};

/// Those that have reached one so far, whose controls these are.
[[nodiscard]] inline RemoteCalls remoteCallsOf(const automation::LateBound& controls) {
    const auto counts = controls.get(u"RemoteCalls").to<automation::Array>();
    const auto count = [&](std::size_t place) { return counts.at(place).to<std::int32_t>(); };
    return {count(0), count(1), count(2), count(3), count(4)};
}

} // namespace trials
