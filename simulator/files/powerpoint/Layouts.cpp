#include "simulator/files/powerpoint/Layouts.h"

#include "simulator/document/LayoutTable.h"
#include "simulator/files/drawing/Placeholders.h"

#include <algorithm>
#include <array>

namespace simulator::powerpoint {

namespace {

constexpr auto customLayout = PpSlideLayout{32};
constexpr std::size_t mostPlaceholders = 8;

using Codes = std::array<std::uint8_t, mostPlaceholders>;

Codes codesOf(const Layout& layout) {
    Codes codes{};
    for (std::size_t i = 0; i < layout.size(); ++i) {
        codes.at(i) = drawing::placeholderCode(layout.types.at(i), SheetKind::Slide);
    }
    return codes;
}

} // namespace

PpSlideLayout readLayout(files::ByteReader& in) {
    const auto arrangement = static_cast<Arrangement>(in.read<std::int32_t>());
    Codes codes{};
    for (std::uint8_t& code : codes) {
        code = in.read<std::uint8_t>();
    }
    PpSlideLayout nearest = customLayout; // the first so arranged, whatever its placeholders are for
    for (const Layout& layout : layouts()) {
        if (layout.arrangement == arrangement && codesOf(layout) == codes) {
            return layout.number;
        }
        if (layout.arrangement == arrangement && nearest == customLayout) {
            nearest = layout.number;
        }
    }
    return nearest;
}

std::string layoutBytes(PpSlideLayout number) {
    const Layout* const known = findLayout(number);
    const Layout& layout = known == nullptr ? *findLayout(ppLayoutBlank) : *known;
    files::ByteWriter out;
    out.write<std::int32_t>(static_cast<std::int32_t>(layout.arrangement));
    for (const std::uint8_t code : codesOf(layout)) {
        out.write<std::uint8_t>(code);
    }
    return out.take();
}

} // namespace simulator::powerpoint
