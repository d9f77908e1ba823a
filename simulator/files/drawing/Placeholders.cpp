#include "simulator/files/drawing/Placeholders.h"

#include "simulator/files/Tables.h"
#include "simulator/files/text/TextStyles.h"

#include <array>

namespace simulator::drawing {

namespace {

struct Pair {
    std::uint8_t code;
    std::int32_t type;
};

/// On slides: title, body, centred title, subtitle, vertical title and body, object, chart, table, picture,
/// organisation chart, media clip; date, number, footer and header bear the numbers of the master's.
constexpr std::array<Pair, 16> placeholders{{{0x0D, ppPlaceholderTitle},
                                             {0x0E, ppPlaceholderBody},
                                             {0x0F, ppPlaceholderCenterTitle},
                                             {0x10, ppPlaceholderSubtitle},
                                             {0x11, 5},
                                             {0x12, 6},
                                             {0x13, 7},
                                             {0x14, 8},
                                             {0x15, 12},
                                             {0x16, 9},
                                             {0x17, 11},
                                             {0x18, 10},
                                             {0x07, 16},
                                             {0x08, 13},
                                             {0x09, 15},
                                             {0x0A, 14}}};

} // namespace

std::uint8_t placeholderCode(PpPlaceholderType type) noexcept {
    const auto place = files::placeWhere(placeholders, [type](const Pair& pair) { return pair.type == type; });
    return place ? placeholders.at(*place).code : std::uint8_t{0};
}

std::optional<PpPlaceholderType> placeholderOf(std::uint8_t code) noexcept {
    const auto place = files::placeWhere(placeholders, [code](const Pair& pair) { return pair.code == code; });
    return place ? std::optional(static_cast<PpPlaceholderType>(placeholders.at(*place).type)) : std::nullopt;
}

std::uint32_t textKindOf(PpPlaceholderType type) noexcept {
    switch (type) {
    case ppPlaceholderTitle: return text::kind::Title;
    case ppPlaceholderBody: return text::kind::Body;
    case ppPlaceholderCenterTitle: return text::kind::CenterTitle;
    case ppPlaceholderSubtitle: return text::kind::CenterBody;
    }
    return text::kind::Other;
}

} // namespace simulator::drawing
