#pragma once

#include "host/command/ExerciseHost.h"
#include "host/try/PlainLines.h"
#include "host/world/EmbeddedWorld.h"

#include <gtest/gtest.h>

#include <sstream>

/// Everything that a program prints, errors too, when it is started with these arguments, reads its scenarios in a
/// folder and has these lines typed; fails the test where another exit code is expected.
inline std::string printedBy(const host::Program& program, const std::vector<std::string>& arguments,
                             const std::filesystem::path& scenarios,
                             std::optional<host::ExitCode> expected = std::nullopt, const std::string& typed = "") {
    std::ostringstream out;
    std::istringstream in(typed);
    const auto lines = [&] { return std::make_unique<host::PlainLines>(in); };
    const host::ExitCode code =
        host::runCommandLine(program, arguments, scenarios, "1.2.3", host::makeEmbeddedWorld, {out, out}, lines);
    EXPECT_EQ(code, expected.value_or(code)) << testing::PrintToString(arguments) << '\n' << out.str();
    return out.str();
}

/// The same of exercise-host.
inline std::string printedBy(const std::vector<std::string>& arguments, const std::filesystem::path& scenarios,
                             std::optional<host::ExitCode> expected = std::nullopt, const std::string& typed = "") {
    return printedBy(host::exerciseHost(), arguments, scenarios, expected, typed);
}
