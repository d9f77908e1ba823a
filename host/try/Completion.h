#pragma once

#include "host/try/OpenQuestion.h"

namespace host {

/// What the last word of a line could become: members of the object before its dot, else members of the application and
/// objects of the language. Nothing is called for it but properties.
[[nodiscard]] std::vector<std::string> completionsOf(const std::string& line, OpenQuestion& open);

} // namespace host
