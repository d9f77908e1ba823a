#include "simulator/files/drawing/Codes.h"

#include "simulator/files/bytes/ColorBits.h"

namespace simulator::drawing {

namespace {

constexpr std::uint32_t schemeFlag = 0x08;
constexpr std::uint32_t relativeFlag = 0x10;

} // namespace

std::uint32_t codeOf(const Color& color) noexcept {
    return color.scheme == ppNotSchemeColor ? files::rgbOf(color)
                                            : (schemeFlag << 24U) | static_cast<std::uint32_t>(color.scheme - 1);
}

Color colorOf(std::uint32_t code, const Color& otherwise) noexcept {
    const std::uint32_t kind = code >> 24U;
    if ((kind & schemeFlag) != 0) {
        const std::uint32_t place = code & 0xFFU;
        return place < files::schemeColors ? Color::of(static_cast<PpColorSchemeIndex>(place + 1)) : otherwise;
    }
    return (kind & relativeFlag) != 0 ? otherwise : files::directColor(code);
}

} // namespace simulator::drawing
