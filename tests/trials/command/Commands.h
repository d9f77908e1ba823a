#pragma once

#include "host/command/Commands.h"
#include "tests/trials/Host.h"

namespace trials {

/// Each adds the options of a command, and answers with what the command does.
///@{
[[nodiscard]] host::Action addTorture(CLI::App& command);
[[nodiscard]] host::Action addMemory(CLI::App& command);
[[nodiscard]] host::Action addPairs(CLI::App& command);
[[nodiscard]] host::Action addLearners(CLI::App& command);
[[nodiscard]] host::Action addDays(CLI::App& command);
[[nodiscard]] host::Action addCost(CLI::App& command);
[[nodiscard]] host::Action addHistories(CLI::App& command);
[[nodiscard]] host::Action addDecks(CLI::App& command);
///@}

} // namespace trials
