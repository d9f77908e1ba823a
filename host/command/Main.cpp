#include "host/command/Main.h"

#include "host/world/EmbeddedWorld.h"
#ifdef _WIN32
#include "host/win32/ComWorld.h"
#include "host/win32/OwnLines.h"

#include <io.h>
#include <windows.h>
#else
#include "host/posix/OwnLines.h"

#include <unistd.h>
#endif

#include <iostream>

namespace {

/// COM is Windows' alone; what a terminal is, and where the program lies, each system says in its own way.
#ifdef _WIN32
constexpr auto comWorlds = &host::makeComWorlds;
bool isTerminal() {
    return _isatty(2) != 0;
}
std::filesystem::path programFile() {
    std::wstring path(32768, L'\0'); // as long as a path can be
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}
#else
constexpr std::nullptr_t comWorlds = nullptr;
bool isTerminal() {
    return isatty(2) != 0;
}
std::filesystem::path programFile() {
    return std::filesystem::read_symlink("/proc/self/exe");
}
#endif

/// Scenarios beside the program come before those of the sources.
std::filesystem::path scenarioFolder(const std::filesystem::path& ofSources) {
    const std::filesystem::path folder = programFile().parent_path();
    const std::filesystem::path beside = folder / "scenarios";
    return std::filesystem::is_directory(beside) ? beside : (folder / ofSources).lexically_normal();
}

} // namespace

int host::runMain(const Program& program, const char* version, const std::filesystem::path& scenarios, int argc,
                  char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return static_cast<int>(runCommandLine(program, arguments, scenarioFolder(scenarios), version, makeEmbeddedWorld,
                                           {std::cout, std::cerr, isTerminal()}, makeOwnLines, comWorlds));
}
