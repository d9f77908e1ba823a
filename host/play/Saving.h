#pragma once

#include "host/language/Ast.h"

namespace host {

/// Appends a scenario to a scenario file in the current folder, or begins that file with the question and the course of
/// `file`, and answers with what has been done. A file of another question, a title that is there already, and a name
/// with a folder in it are refused: std::runtime_error, in words for the author.
[[nodiscard]] std::string appendScenario(const std::string& name, const language::ScenarioFile& file,
                                         std::u16string_view title, const std::vector<std::u16string>& statements);

} // namespace host
