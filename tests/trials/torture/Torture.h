#pragma once

#include "tests/trials/torture/Audience.h"

#include <random>

namespace trials::torture {

/// Makes every call of every operation of one question fail in every way that fits it.
class Torture {
public:
    /// Of the calls of an operation one in `every` is made to fail, beginning with one that `random` picks. All must
    /// outlive this object.
    Torture(const language::ScenarioFile& file, const WorldMaker& makeWorld, std::size_t every, std::mt19937& random);

    /// Raises language::Failure where the scenario itself falls short.
    void run(const Audience& audience) const;
    /// The same with worlds whose PowerPoint is in a process of its own: it misbehaves at the calls that reach it,
    /// which must be those that the module makes in this process. The host brings PowerPoint.
    void runRemote(const WorldMaker& makeRemoteWorld, const Audience& audience) const;

private:
    /// An operation in which a fault strikes the n-th call.
    using Struck = std::function<Outcome(const Fault&, std::size_t)>;

    /// An operation as it goes when nothing fails, and the calls on its route that can be made to fail.
    struct Ground {
        Operation operation;
        const Outcome& flawless;
        std::span<const Call> route;
        std::span<const std::size_t> positions;
    };

    void run(const Ground& ground, std::span<const Fault> faults, const Struck& struck, const Audience& audience) const;

    const language::ScenarioFile& file_;
    Course course_;
    Run run_;
    std::size_t every_;
    std::mt19937& random_;
};

} // namespace trials::torture
