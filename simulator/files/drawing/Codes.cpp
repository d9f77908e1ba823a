#include "simulator/files/drawing/Codes.h"

#include "simulator/files/Tables.h"

#include <algorithm>

namespace simulator::drawing {

namespace {

constexpr std::uint32_t schemeFlag = 0x08;
constexpr std::uint32_t schemeColors = 8;
constexpr std::uint32_t relativeFlag = 0x10;

/// By dash style, from 1: solid, square dot, round dot, dash, dash-dot, dash-dot-dot, long dash, long dash-dot.
constexpr std::array<std::uint32_t, 8> dashes{0, 1, 2, 6, 8, 4, 7, 9};

} // namespace

std::uint32_t codeOf(const Color& color) noexcept {
    return color.scheme == ppNotSchemeColor ? static_cast<std::uint32_t>(color.rgb) & 0xFFFFFFU
                                            : (schemeFlag << 24U) | static_cast<std::uint32_t>(color.scheme - 1);
}

Color colorOf(std::uint32_t code, const Color& otherwise) noexcept {
    const std::uint32_t kind = code >> 24U;
    if ((kind & schemeFlag) != 0) {
        const std::uint32_t place = code & 0xFFU;
        return place < schemeColors ? Color::of(static_cast<PpColorSchemeIndex>(place + 1)) : otherwise;
    }
    return (kind & relativeFlag) != 0 ? otherwise : Color::direct(static_cast<std::int32_t>(code & 0xFFFFFFU));
}

std::uint32_t dashCodeOf(std::int32_t dashStyle) noexcept {
    const bool isKnown = dashStyle >= 1 && dashStyle <= static_cast<std::int32_t>(dashes.size());
    return isKnown ? dashes.at(static_cast<std::size_t>(dashStyle) - 1) : 0;
}

std::int32_t dashStyleOf(std::uint32_t code) noexcept {
    return static_cast<std::int32_t>(files::placeIn(dashes, code).value_or(0)) + 1;
}

} // namespace simulator::drawing
