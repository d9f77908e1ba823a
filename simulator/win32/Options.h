#pragma once

#include "simulator/win32/Troubles.h"

#include <optional>
#include <string>
#include <vector>

namespace simulator::standin {

/// The part of the registry that programs of one width see.
enum class View : std::uint8_t { Own, Bits32, Bits64 };

/// What the command line asks for.
struct Options {
    enum class Task : std::uint8_t { Run, Register, Unregister };

    Task task = Task::Run;
    View view = View::Own;
    bool isEmbedding = false;  ///< started by the system for an automation client
    std::wstring standbyEvent; ///< set while clients can create PowerPoint, which does not run until then
    bool isHidden = false;
    bool isMinimised = false;
    std::int32_t slowness = 0; ///< milliseconds
    std::int32_t refusals = 0; ///< calls
    std::int32_t deadlyCall = Troubles::never;
};

/// A command line read: the options, or what to print and the exit code to end with.
struct CommandLine {
    std::optional<Options> options;
    std::string output;
    int exitCode = 0;
};

/// Reads the arguments, the program's name left out.
[[nodiscard]] CommandLine readCommandLine(const std::vector<std::string>& arguments);

} // namespace simulator::standin
