#pragma once

#include "host/report/Result.h"

namespace host::report {

/// What every such report begins with, and no file of another program.
inline constexpr std::string_view junitBeginning =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites name=\"exercise-host verify\"";

/// A report as build servers read it: JUnit's XML, a suite for each file and a case for each scenario.
[[nodiscard]] std::string asJUnit(const Report& report);

} // namespace host::report
