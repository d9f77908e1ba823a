#pragma once

#include <cstdint>
#include <optional>

namespace simulator::drawing {

/// The kind of a drawing's shape for an AutoShape type, 1 to lastAutoShape; a rectangle's for others.
[[nodiscard]] std::uint16_t kindOf(std::int32_t autoShapeType) noexcept;
/// The AutoShape type of a kind; nothing for a kind that is no AutoShape.
[[nodiscard]] std::optional<std::int32_t> autoShapeTypeOf(std::uint16_t kind) noexcept;

} // namespace simulator::drawing
