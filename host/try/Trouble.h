#pragma once

#include "host/language/Position.h"

namespace host {

/// What is wrong with a line that was typed, with its column, on one line.
[[nodiscard]] std::string explained(const language::SyntaxError& error);

/// What a move has raised or found, on one line, and what to do next where that can be told from the error.
[[nodiscard]] std::string explained(const language::Failure& failure);

} // namespace host
