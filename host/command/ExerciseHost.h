#pragma once

#include "host/command/CommandLine.h"

namespace host {

/// `exercise-host`, the course author's program.
[[nodiscard]] const Program& exerciseHost() noexcept;

} // namespace host
