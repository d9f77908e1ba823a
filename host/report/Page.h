#pragma once

#include "host/report/Result.h"

namespace host::report {

/// A report as one page of HTML that needs nothing else: a row for each file with its letters, behind it its scenarios
/// with their moves, verdicts and the slide before and after. `when` is said in its head.
[[nodiscard]] std::string asPage(const Report& report, const std::string& when);

} // namespace host::report
