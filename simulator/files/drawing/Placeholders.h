#pragma once

#include "simulator/document/Constants.h"

#include <cstdint>
#include <optional>

namespace simulator::drawing {

/// The number of a placeholder on a slide, in its record.
[[nodiscard]] std::uint8_t placeholderCode(PpPlaceholderType type) noexcept;
/// Nothing for a number that is none of a placeholder on a slide.
[[nodiscard]] std::optional<PpPlaceholderType> placeholderOf(std::uint8_t code) noexcept;

/// The kind of text that a placeholder holds.
[[nodiscard]] std::uint32_t textKindOf(PpPlaceholderType type) noexcept;

} // namespace simulator::drawing
