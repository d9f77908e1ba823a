#include "host/command/CommandLine.h"
#include "host/world/EmbeddedWorld.h"
#ifdef _WIN32
#include "host/win32/ComWorld.h"
#include "host/win32/OwnLines.h"

#include <io.h>
#else
#include "host/posix/OwnLines.h"

#include <unistd.h>
#endif

#include <iostream>

namespace {

/// Scenarios beside the program come before those of the sources.
std::filesystem::path scenarioFolder(const std::filesystem::path& program) {
    const std::filesystem::path beside = program.parent_path() / "scenarios";
    return std::filesystem::is_directory(beside) ? beside : std::filesystem::path(EXERCISE_HOST_SCENARIOS);
}

/// COM is Windows' alone; what a terminal is, each system says in its own way.
#ifdef _WIN32
constexpr auto comWorlds = &host::makeComWorlds;
bool isTerminal() {
    return _isatty(2) != 0;
}
#else
constexpr std::nullptr_t comWorlds = nullptr;
bool isTerminal() {
    return isatty(2) != 0;
}
#endif

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return static_cast<int>(host::runCommandLine(arguments, scenarioFolder(argv[0]), EXERCISE_HOST_VERSION,
                                                 host::makeEmbeddedWorld, {std::cout, std::cerr, isTerminal()},
                                                 host::makeOwnLines, comWorlds));
}
