#pragma once

#include "simulator/document/Constants.h"
#include "simulator/document/SheetKind.h"

#include <cstdint>
#include <optional>

namespace simulator::drawing {

/// The number of a placeholder on a sheet, in its record; 0 for one that such a sheet cannot have.
[[nodiscard]] std::uint8_t placeholderCode(PpPlaceholderType type, SheetKind sheet) noexcept;
/// Nothing for a number that is none of a placeholder on such a sheet.
[[nodiscard]] std::optional<PpPlaceholderType> placeholderOf(std::uint8_t code, SheetKind sheet) noexcept;

/// The kind of text that a placeholder holds.
[[nodiscard]] std::uint32_t textKindOf(PpPlaceholderType type, SheetKind sheet) noexcept;

} // namespace simulator::drawing
