#pragma once

#include "host/report/Result.h"

namespace host::report {

/// A report as JSON: totals, and for each file its letters and scenarios, with moves, verdicts, calls and time.
[[nodiscard]] std::string asJson(const Report& report);

} // namespace host::report
