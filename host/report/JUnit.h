#pragma once

#include "host/report/Result.h"

namespace host::report {

/// A report as build servers read it: JUnit's XML, a suite for each file and a case for each scenario.
[[nodiscard]] std::string asJUnit(const Report& report);

} // namespace host::report
