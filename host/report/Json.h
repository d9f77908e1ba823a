#pragma once

#include "host/report/Result.h"

namespace host::report {

/// What every such report begins with, and no file of another program.
inline constexpr std::string_view jsonBeginning = "{\n \"program\": \"exercise-host verify\"";

/// A report as JSON: totals, and for each file its letters and scenarios, with moves, verdicts, calls and time.
[[nodiscard]] std::string asJson(const Report& report);

} // namespace host::report
