#pragma once

#include "simulator/document/Color.h"
#include "simulator/files/drawing/PropertyIds.h"

#include <cmath>
#include <limits>

namespace simulator::drawing {

/// The whole number nearest to one, within what 32 bits hold.
[[nodiscard]] inline std::int32_t nearest(double number) noexcept {
    constexpr double lowest = std::numeric_limits<std::int32_t>::min();
    constexpr double highest = std::numeric_limits<std::int32_t>::max();
    return number != number ? 0 : static_cast<std::int32_t>(std::lround(std::fmin(std::fmax(number, lowest), highest)));
}
/// The same, as a property holds it.
[[nodiscard]] inline std::uint32_t code(double number) noexcept {
    return static_cast<std::uint32_t>(nearest(number));
}

/// A length in points, as a property holds it: in EMU.
[[nodiscard]] inline std::uint32_t emu(float points) noexcept {
    return code(double{points} * emuPerPoint);
}

/// A colour of a drawing: red in the low byte, and a byte that says whether the low one is a place of the scheme.
[[nodiscard]] std::uint32_t codeOf(const Color& color) noexcept;
/// `otherwise` for a colour that is relative to something else.
[[nodiscard]] Color colorOf(std::uint32_t code, const Color& otherwise) noexcept;

} // namespace simulator::drawing
