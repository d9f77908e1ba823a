#pragma once

#include "host/command/CommandLine.h"
#include "tests/trials/Host.h"

namespace trials {

/// `trials`, the maintainer's program.
[[nodiscard]] const host::Program& program() noexcept;

} // namespace trials
