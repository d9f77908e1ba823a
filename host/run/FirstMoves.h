#pragma once

#include "host/run/TrainingHost.h"

namespace host {

/// Performs what the learner does before the first check of a file's first scenario. Raises language::Failure where a
/// move falls short.
void performFirstMoves(const language::ScenarioFile& file, World& world, TrainingHost& host);

} // namespace host
