#pragma once

#include "host/command/ExitCode.h"
#include "host/command/Ink.h"
#include "host/command/Library.h"
#include "host/command/Progress.h"
#include "host/try/LineReader.h"
#include "host/world/World.h"

#include <iosfwd>

namespace CLI {
class App;
}

namespace host {

/// The worlds that a command works in.
struct Worlds {
    const WorldMaker& embedded;
    const WorldMaker& remote; ///< with PowerPoint in a process of its own and the registered library, whose calls no
                              ///< observer sees; empty where they are not asked for
    const WorldMaker& traced; ///< those that are chosen, with the program's own module where an observer is given

    [[nodiscard]] const WorldMaker& chosen() const noexcept { return remote ? remote : embedded; }
};

/// What a command has at hand.
struct CommandContext { // NOLINT(cppcoreguidelines-pro-type-member-init): its references are set where it is made
    const Library& library;
    Worlds worlds;
    const LineReaderMaker& makeLines;
    std::ostream& out;
    Progress& progress;
    Ink ink;
};

/// What a command does with the options that the command line gave it. Raises UsageError, WrongFiles, MachineFault.
using Action = std::function<ExitCode(const CommandContext&)>;

/// Each adds the options of a command, and answers with what the command does.
///@{
[[nodiscard]] Action addRun(CLI::App& command);
[[nodiscard]] Action addTry(CLI::App& command);
[[nodiscard]] Action addPlay(CLI::App& command);
[[nodiscard]] Action addVerify(CLI::App& command);
[[nodiscard]] Action addConform(CLI::App& command);
[[nodiscard]] Action addRecheck(CLI::App& command);
[[nodiscard]] Action addDeliver(CLI::App& command);
[[nodiscard]] Action addList(CLI::App& command);
///@}

} // namespace host
