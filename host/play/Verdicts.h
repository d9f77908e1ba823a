#pragma once

#include "host/language/Ast.h"

#include <nlohmann/json.hpp>

namespace host {

/// A verdict as the page tells it: what the host reads, and what the question's file says that it means.
///
///     {"passed": false, "letter": "B", "reads": "the letter \"B\"", "meaning": "ZOR2 is gone", "scenarios": ["…"]}
[[nodiscard]] nlohmann::json verdictOf(const Reading& reading, const language::ScenarioFile& file);

} // namespace host
