#pragma once

#include "host/try/Attempt.h"

namespace host {

/// What the last word of a line could become: members of the object before its dot, else members of the application and
/// objects of the language. Nothing is called for it but properties.
[[nodiscard]] std::vector<std::string> completionsOf(const std::string& line, Attempt& attempt);

} // namespace host
