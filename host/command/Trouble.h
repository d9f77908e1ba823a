#pragma once

#include "host/command/ExitCode.h"

#include <functional>
#include <iosfwd>
#include <string>

namespace host {

/// Does work of a program's. What it raises is printed, in words for the user, and becomes the exit code.
[[nodiscard]] ExitCode withTroubleTold(const std::string& program, std::ostream& error,
                                       const std::function<ExitCode()>& work);

} // namespace host
