#pragma once

#include "tests/trials/learners/Learner.h"

namespace trials::learners {

/// A scenario file on the course of `file` with one scenario: what a learner has done, and what its checks must read.
[[nodiscard]] std::string scenarioText(const language::ScenarioFile& file, const Moves& moves,
                                       const std::vector<Finding>& findings, const std::string& title);

} // namespace trials::learners
