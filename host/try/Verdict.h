#pragma once

#include "host/language/Ast.h"

#include <iosfwd>

namespace host {

/// Explains what a host reads: the outcome in words with the four values, what it means, and which scenarios of the
/// question end so.
void explain(const Reading& reading, const language::ScenarioFile& file, std::ostream& out);

} // namespace host
