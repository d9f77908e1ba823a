#pragma once

#include "host/run/Course.h"

namespace host::reason {

/// What a course's presentation lacks of what the scenario file says that it must hold, shape by shape. Every
/// expectation is looked at; a variable that cannot be set ends them. Raises what PowerPoint raises where the
/// presentation cannot be opened.
[[nodiscard]] std::vector<language::Remark> shortcomingsOf(const Course& course, const language::ScenarioFile& file,
                                                           const WorldMaker& makeWorld);

} // namespace host::reason
