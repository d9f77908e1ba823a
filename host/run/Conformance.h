#pragma once

#include "host/language/Ast.h"
#include "host/world/World.h"

namespace host {

/// What became of an expectation of a promise: PowerPoint keeps it, or does not, or what comes before it went wrong.
enum class Kept : std::uint8_t { Agrees, Differs, CannotTell };

struct Finding {
    Kept kept = Kept::Agrees;
    language::Remark remark; ///< its place, and what was found instead
};

/// Asks a PowerPoint whether it keeps a promise of a file: the statements of the file's course are performed in a fresh
/// world, then those of the promise, without the module. An expectation that falls short does not end it.
[[nodiscard]] std::vector<Finding> findingsOf(const language::ScenarioFile& file, const language::Scenario& promise,
                                              const WorldMaker& makeWorld);

} // namespace host
