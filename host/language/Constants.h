#pragma once

#include "automation/Value.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host::language {

/// The value of a named constant (PowerPoint's, Office's, a control character, True, False, Nothing), its case ignored.
[[nodiscard]] std::optional<automation::Value> findConstant(std::u16string_view name);

/// The name with this beginning of a number: `msoGroup` for "mso" and 6; nothing where there is none. Of several the
/// first in the table, so that the beginning has to say what is meant.
[[nodiscard]] std::optional<std::u16string> nameOfConstant(std::u16string_view stem, std::int32_t value);

/// All names of constants.
[[nodiscard]] std::vector<std::u16string> constantNames();

/// True for names formed as constants are (`msoSomething`, `ppSomething`, `vbSomething`).
[[nodiscard]] bool looksLikeConstant(std::u16string_view name);

/// The names that a scenario file cannot use for its variables.
[[nodiscard]] std::vector<std::u16string_view> reservedNames();
[[nodiscard]] bool isReserved(std::u16string_view name);

} // namespace host::language
