#include "simulator/files/drawing/Placeholders.h"

#include "simulator/files/bytes/Tables.h"
#include "simulator/files/text/TextStyles.h"

#include <array>

namespace simulator::drawing {

namespace {

struct Pair {
    std::uint8_t code;
    PpPlaceholderType type;
};

/// On slides; date, number, footer and header bear the numbers of the master's.
constexpr std::array<Pair, 16> placeholders{{{0x0D, ppPlaceholderTitle},
                                             {0x0E, ppPlaceholderBody},
                                             {0x0F, ppPlaceholderCenterTitle},
                                             {0x10, ppPlaceholderSubtitle},
                                             {0x11, ppPlaceholderVerticalTitle},
                                             {0x12, ppPlaceholderVerticalBody},
                                             {0x13, ppPlaceholderObject},
                                             {0x14, ppPlaceholderChart},
                                             {0x15, ppPlaceholderTable},
                                             {0x16, ppPlaceholderBitmap},
                                             {0x17, ppPlaceholderOrgChart},
                                             {0x18, ppPlaceholderMediaClip},
                                             {0x07, ppPlaceholderDate},
                                             {0x08, ppPlaceholderSlideNumber},
                                             {0x09, ppPlaceholderFooter},
                                             {0x0A, ppPlaceholderHeader}}};

} // namespace

std::uint8_t placeholderCode(PpPlaceholderType type) noexcept {
    const auto place = files::placeWhere(placeholders, [type](const Pair& pair) { return pair.type == type; });
    return place ? placeholders.at(*place).code : std::uint8_t{0};
}

std::optional<PpPlaceholderType> placeholderOf(std::uint8_t code) noexcept {
    const auto place = files::placeWhere(placeholders, [code](const Pair& pair) { return pair.code == code; });
    return place ? std::optional(placeholders.at(*place).type) : std::nullopt;
}

std::uint32_t textKindOf(PpPlaceholderType type) noexcept {
    switch (type) {
    case ppPlaceholderVerticalTitle:
    case ppPlaceholderTitle: return text::kind::Title;
    case ppPlaceholderVerticalBody:
    case ppPlaceholderBody: return text::kind::Body;
    case ppPlaceholderCenterTitle: return text::kind::CenterTitle;
    case ppPlaceholderSubtitle: return text::kind::CenterBody;
    default: return text::kind::Other;
    }
}

} // namespace simulator::drawing
