#include "simulator/files/drawing/Placeholders.h"

#include "simulator/files/text/TextStyles.h"

#include <array>
#include <span>

namespace simulator::drawing {

namespace {

struct Pair {
    std::uint8_t code;
    PpPlaceholderType type;
};

constexpr std::array<Pair, 12> onSlides{{{0x0D, ppPlaceholderTitle},
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
                                         {0x18, ppPlaceholderMediaClip}}};
constexpr std::array<Pair, 4> onSlideMasters{{{0x01, ppPlaceholderTitle},
                                              {0x02, ppPlaceholderBody},
                                              {0x03, ppPlaceholderCenterTitle},
                                              {0x04, ppPlaceholderSubtitle}}};
constexpr std::array<Pair, 2> onPageMasters{{{0x05, ppPlaceholderSlideImage}, {0x06, ppPlaceholderBody}}};
constexpr std::array<Pair, 2> onNotesPages{{{0x0B, ppPlaceholderSlideImage}, {0x0C, ppPlaceholderBody}}};
/// The master's numbers serve everywhere.
constexpr std::array<Pair, 4> anywhere{{{0x07, ppPlaceholderDate},
                                        {0x08, ppPlaceholderSlideNumber},
                                        {0x09, ppPlaceholderFooter},
                                        {0x0A, ppPlaceholderHeader}}};

std::span<const Pair> placeholdersOn(SheetKind sheet) noexcept {
    switch (sheet) {
    case SheetKind::Slide: return onSlides;
    case SheetKind::SlideMaster:
    case SheetKind::TitleMaster: return onSlideMasters;
    case SheetKind::NotesPage: return onNotesPages;
    case SheetKind::NotesMaster:
    case SheetKind::HandoutMaster: break;
    }
    return onPageMasters;
}

template <typename Matches> const Pair* findOn(SheetKind sheet, const Matches& matches) noexcept {
    for (const std::span<const Pair> pairs : {placeholdersOn(sheet), std::span<const Pair>(anywhere)}) {
        for (const Pair& pair : pairs) {
            if (matches(pair)) {
                return &pair;
            }
        }
    }
    return nullptr;
}

} // namespace

std::uint8_t placeholderCode(PpPlaceholderType type, SheetKind sheet) noexcept {
    const Pair* const found = findOn(sheet, [type](const Pair& pair) { return pair.type == type; });
    return found == nullptr ? std::uint8_t{0} : found->code;
}

std::optional<PpPlaceholderType> placeholderOf(std::uint8_t code, SheetKind sheet) noexcept {
    const Pair* const found = findOn(sheet, [code](const Pair& pair) { return pair.code == code; });
    return found == nullptr ? std::nullopt : std::optional(found->type);
}

std::uint32_t textKindOf(PpPlaceholderType type, SheetKind sheet) noexcept {
    switch (type) {
    case ppPlaceholderVerticalTitle:
    case ppPlaceholderTitle: return text::kind::Title;
    case ppPlaceholderVerticalBody:
    case ppPlaceholderBody: return isPage(sheet) ? text::kind::Notes : text::kind::Body;
    case ppPlaceholderCenterTitle: return text::kind::CenterTitle;
    case ppPlaceholderSubtitle: return text::kind::CenterBody;
    default: return text::kind::Other;
    }
}

} // namespace simulator::drawing
