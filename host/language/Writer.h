#pragma once

#include "host/language/Ast.h"

namespace host::language {

/// The statements that pass where the host reads this: a check, and what else has to be expected behind it.
[[nodiscard]] std::vector<std::u16string> checkOf(const Reading& reading);

/// A scenario as a block of a file, in UTF-8.
[[nodiscard]] std::string scenarioBlock(std::u16string_view title, const std::vector<std::u16string>& statements);

/// A scenario file in UTF-8 with the question and the course of `file` and one scenario, of these statements.
[[nodiscard]] std::string scenarioText(const ScenarioFile& file, std::u16string_view title,
                                       const std::vector<std::u16string>& statements);

} // namespace host::language
