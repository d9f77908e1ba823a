#pragma once

#include "host/command/Commands.h"

namespace host {

/// Makes the worlds that `--powerpoint` asks for, with a PowerPoint of so many bits; of any number where it is 0.
using ComWorldsMaker = std::function<WorldMaker(std::int32_t powerPointBits)>;

/// Where a program writes.
struct Output {
    std::ostream& out;
    std::ostream& error;
    bool isTerminal = false; ///< `error` is watched by someone who likes to see progress
};

/// Does what the arguments of a command line say (the program's name left out). `scenarios` is the folder of the
/// scenario files where the command line names no other. `makeComWorlds` makes what `--powerpoint` asks for, where
/// there is such a thing.
[[nodiscard]] ExitCode runCommandLine(const std::vector<std::string>& arguments, const std::filesystem::path& scenarios,
                                      const std::string& version, const WorldMaker& makeWorld, Output output,
                                      const ComWorldsMaker& makeComWorlds = nullptr);

} // namespace host
