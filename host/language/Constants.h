#pragma once

#include "automation/Value.h"

#include <optional>
#include <string_view>

namespace host::language {

/// The value of a named constant (PowerPoint's, Office's, a control character, True, False, Nothing), its case ignored.
[[nodiscard]] std::optional<automation::Value> findConstant(std::u16string_view name);

/// True for names formed as constants are (`msoSomething`, `ppSomething`, `vbSomething`).
[[nodiscard]] bool looksLikeConstant(std::u16string_view name);

/// True for the names that a scenario file cannot use for its variables.
[[nodiscard]] bool isReserved(std::u16string_view name);

} // namespace host::language
