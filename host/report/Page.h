#pragma once

#include "host/report/Result.h"

namespace host::report {

/// What every such page begins with, and no page of another program.
inline constexpr std::string_view pageBeginning = "<!DOCTYPE html>\n<!-- exercise-host verify -->\n";

/// A report as one page of HTML that needs nothing else: a row for each file with its letters, behind it its scenarios
/// with their moves, verdicts and the slide before and after. `when` is said in its head.
[[nodiscard]] std::string asPage(const Report& report, const std::string& when);

} // namespace host::report
