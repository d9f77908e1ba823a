#pragma once

#include "host/language/Ast.h"

#include <span>

namespace host {

/// The check that passes where the host reads this.
[[nodiscard]] std::u16string checkOf(const Reading& reading);

/// A scenario file in UTF-8 with the question and the course of `file` and one scenario, of these statements.
[[nodiscard]] std::string scenarioText(const language::ScenarioFile& file, std::u16string_view title,
                                       std::span<const language::Statement> statements);

} // namespace host
