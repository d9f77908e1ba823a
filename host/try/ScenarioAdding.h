#pragma once

#include "host/language/Ast.h"

namespace host {

/// Adds a scenario to those of a scenario file, which is the user's own and is replaced as a whole. A file about
/// another question than `file` and one that cannot take the scenario are refused: std::runtime_error, in words for the
/// user; so does what raises where the file cannot be read or written.
void addScenario(const std::string& name, const language::ScenarioFile& file, std::u16string_view title,
                 const std::vector<std::u16string>& statements);

} // namespace host
