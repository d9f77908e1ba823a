#pragma once

#include "host/command/CommandLine.h"

namespace host {

/// The whole of a program's `main`. `scenarios` is the way from the program to the scenario files of the sources, which
/// it reads where none lie beside it.
[[nodiscard]] int runMain(const Program& program, const char* version, const std::filesystem::path& scenarios, int argc,
                          char** argv);

} // namespace host
