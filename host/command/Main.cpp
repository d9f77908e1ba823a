#include "host/command/Main.h"

#include "automation/Text.h"
#include "host/language/Folding.h"
#include "host/world/EmbeddedWorld.h"
#ifdef _WIN32
#include "host/win32/ComWorld.h"
#include "host/win32/OwnLines.h"
#include "host/win32/OwnTerminal.h"

#include <windows.h>

#include <shellapi.h>
#else
#include "host/posix/OwnLines.h"
#include "host/posix/OwnTerminal.h"
#endif

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace {

/// COM is Windows' alone; what a terminal is, and where the program lies, each system says in its own way.
#ifdef _WIN32
constexpr auto comWorlds = &host::makeComWorlds;
std::filesystem::path programFile() {
    std::wstring path(32768, L'\0'); // as long as a path can be
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}
/// As the command line has them: what `main` is given has lost the letters that the code page lacks.
std::vector<std::string> givenArguments(int /*argc*/, char** /*argv*/) {
    int count = 0;
    LPWSTR* const all = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (const std::wstring_view text : std::span(all + 1, all + count)) {
        arguments.push_back(automation::toUtf8(std::u16string(text.begin(), text.end())));
    }
    LocalFree(all);
    return arguments;
}
#else
constexpr std::nullptr_t comWorlds = nullptr;
std::filesystem::path programFile() {
    return std::filesystem::read_symlink("/proc/self/exe");
}
std::vector<std::string> givenArguments(int argc, char** argv) {
    return {argv + 1, argv + argc};
}
#endif

/// How wide the lines are that an output takes; 0 where no terminal shows them. `COLUMNS` knows better than it.
std::size_t columnsOf(std::FILE* output) {
    constexpr std::size_t least = 20;
    const std::size_t shown = host::OwnTerminal::columns(output);
    const char* const wanted = std::getenv("COLUMNS");
    const std::size_t columns = wanted == nullptr ? 0 : std::strtoul(wanted, nullptr, 10);
    return shown == 0 ? 0 : std::max(columns == 0 ? shown : columns, least);
}

/// Scenarios beside the program come before those of the sources.
std::filesystem::path scenarioFolder(const std::filesystem::path& ofSources) {
    const std::filesystem::path folder = programFile().parent_path();
    const std::filesystem::path beside = folder / "scenarios";
    return std::filesystem::is_directory(beside) ? beside : (folder / ofSources).lexically_normal();
}

} // namespace

int host::runMain(const Program& program, const char* version, const std::filesystem::path& scenarios, int argc,
                  char** argv) {
    const OwnTerminal terminal;
    const char* const refused = std::getenv("NO_COLOR");
    const Ink ink{OwnTerminal::takesColours() && (refused == nullptr || *refused == '\0')};
    const std::size_t columnsOfError = columnsOf(stderr);
    FoldedStream out(std::cout, columnsOf(stdout));
    FoldedStream error(std::cerr, columnsOfError);
    return static_cast<int>(runCommandLine(program, givenArguments(argc, argv), scenarioFolder(scenarios), version,
                                           makeEmbeddedWorld, {out, error, columnsOfError, ink}, makeOwnLines,
                                           comWorlds));
}
