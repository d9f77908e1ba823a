#pragma once

#include "simulator/document/Constants.h"

#include <array>
#include <cstdint>

namespace simulator {

/// The eight colours of a presentation's colour scheme, from `ppBackground` to `ppAccent3`; red in the low byte.
struct ColorScheme {
    std::array<std::int32_t, 8> colors{0xFFFFFF, 0x000000, 0x808080, 0x000000, 0x99CCBB, 0x993333, 0x00FF99, 0x99CC99};

    friend bool operator==(const ColorScheme&, const ColorScheme&) = default;
};

/// A colour as a document keeps it: a direct RGB value (red in the low byte), or a place of the colour scheme.
struct Color {
    PpColorSchemeIndex scheme = ppNotSchemeColor;
    std::int32_t rgb = 0;

    [[nodiscard]] static constexpr Color direct(std::int32_t rgb) noexcept { return {ppNotSchemeColor, rgb}; }
    [[nodiscard]] static constexpr Color of(PpColorSchemeIndex place) noexcept { return {place, 0}; }

    [[nodiscard]] std::int32_t in(const ColorScheme& colors) const {
        return scheme == ppNotSchemeColor ? rgb : colors.colors.at(static_cast<std::size_t>(scheme) - 1);
    }

    friend bool operator==(const Color&, const Color&) = default;
};

} // namespace simulator
