#pragma once

#include "host/command/Commands.h"

#include <span>

namespace host {

/// Makes the worlds that `--powerpoint` asks for, with a PowerPoint of so many bits; of any number where it is 0.
using ComWorldsMaker = std::function<WorldMaker(std::int32_t powerPointBits)>;

/// One of a program's commands.
struct Command {
    const char* name = nullptr;
    const char* what = nullptr;
    Action (*add)(CLI::App&) = nullptr; ///< adds its options, and answers with what it does
    bool takesPowerPoint = false;       ///< with `--powerpoint` it works through COM
    const char* examples = "";          ///< lines of its own help; those of the program where there are none
};

/// What a program is called, and does.
struct Program {
    const char* name;
    const char* purpose;
    const char* examples;
    std::span<const Command> commands;
};

/// Where a program writes.
struct Output {
    std::ostream& out;
    std::ostream& error;
    std::size_t columns = 0; ///< of the terminal where someone who likes to see progress watches `error`; 0 for none
    Ink ink{};               ///< that `out` takes
};

/// Does what the arguments of a program's command line say (its name left out). `scenarios` is the folder of the
/// scenario files where the command line names no other. `makeLines` makes what a conversation reads; `makeComWorlds`
/// makes what `--powerpoint` asks for, where there is such a thing.
[[nodiscard]] ExitCode runCommandLine(const Program& program, const std::vector<std::string>& arguments,
                                      const std::filesystem::path& scenarios, const std::string& version,
                                      const WorldMaker& makeWorld, Output output, const LineReaderMaker& makeLines,
                                      const ComWorldsMaker& makeComWorlds = nullptr);

} // namespace host
