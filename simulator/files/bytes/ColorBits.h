#pragma once

#include "simulator/document/Color.h"

#include <tuple>

namespace simulator::files {

/// The bits of a colour that are red, green and blue; what stands above them is its kind.
inline constexpr std::uint32_t rgbBits = 0xFFFFFF;
/// How many colours a scheme has.
inline constexpr std::uint32_t schemeColors = std::tuple_size_v<decltype(ColorScheme::colors)>;

[[nodiscard]] constexpr std::uint32_t rgbOf(const Color& color) noexcept {
    return static_cast<std::uint32_t>(color.rgb) & rgbBits;
}
[[nodiscard]] constexpr Color directColor(std::uint32_t code) noexcept {
    return Color::direct(static_cast<std::int32_t>(code & rgbBits));
}

} // namespace simulator::files
