#pragma once

#include "host/run/TrainingHost.h"
#include "tests/trials/Host.h"
#include "tests/trials/torture/Tampering.h"
#include "tests/trials/trace/Expected.h"

namespace trials::torture {

using trace::Operation;

/// The operations in which something is made to fail.
inline constexpr std::array operations{
    Operation{HostCall::InitQuestion, Operation::Arrival::Brought},
    Operation{HostCall::InitQuestion, Operation::Arrival::Started},
    Operation{HostCall::TestePoint, Operation::Arrival::Brought},
    Operation{HostCall::Fermer, Operation::Arrival::Brought},
    Operation{HostCall::Quitter, Operation::Arrival::Brought},
    Operation{HostCall::Quitter, Operation::Arrival::Started},
    Operation{HostCall::InitQuestion, Operation::Arrival::Brought, true},
};

/// What an operation came to, and what the course of the question after it left amiss.
struct Outcome {
    std::optional<automation::Error> error; ///< what the operation raised
    std::optional<Reading> reading;         ///< of TestePoint
    std::size_t calls = 0;                  ///< that left the module during the operation
    bool isStruck = true;                   ///< the call that was to fail has been reached
    bool powerPointEnded = false;           ///< the learner's PowerPoint no longer ran when the module was left
    std::vector<std::string> bars;          ///< what is amiss with the command bars
    std::vector<std::string> presentations; ///< what is amiss with those of the learner
    std::vector<std::string> findings;      ///< what else is amiss
};

/// The way of one question through a fresh world: it is begun, worked on, checked, closed and left, up to the operation
/// in question and on through Fermer and Quitter; then comes a fresh start without faults, after which all that is the
/// learner's must be as it was.
class Run {
public:
    /// All must outlive this object.
    Run(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld)
        : file_(file), course_(course), makeWorld_(makeWorld) {}

    /// Calls are tampered with from the beginning of the operation to the end of Quitter. With `foldersStayWritable`
    /// the folders must be the learner's again before the fresh start.
    [[nodiscard]] Outcome run(Operation operation, Tampering& tampering, bool foldersStayWritable) const;

private:
    [[nodiscard]] Outcome runIn(World& world, Operation operation, Tampering& tampering,
                                bool foldersStayWritable) const;

    const language::ScenarioFile& file_;
    const Course& course_;
    const WorldMaker& makeWorld_;
};

} // namespace trials::torture
