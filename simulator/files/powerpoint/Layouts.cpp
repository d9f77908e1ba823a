#include "simulator/files/powerpoint/Layouts.h"

#include "simulator/files/Bytes.h"
#include "simulator/files/Tables.h"
#include "simulator/files/drawing/Placeholders.h"

#include <array>

namespace simulator::powerpoint {

namespace {

struct Pair {
    std::int32_t geometry;
    std::int32_t layout;
};

constexpr std::int32_t customLayout = 32;
constexpr std::int32_t blankGeometry = 16;
constexpr std::array<Pair, 8> layouts{{{0, ppLayoutTitle},
                                       {1, ppLayoutText},
                                       {7, ppLayoutTitleOnly},
                                       {blankGeometry, ppLayoutBlank},
                                       {8, 3},
                                       {14, 24},
                                       {15, 15},
                                       {17, 27}}};

} // namespace

PpSlideLayout layoutOf(std::int32_t geometry) noexcept {
    const auto place = files::placeWhere(layouts, [=](const Pair& pair) { return pair.geometry == geometry; });
    return static_cast<PpSlideLayout>(place ? layouts.at(*place).layout : customLayout);
}

std::string layoutBytes(PpSlideLayout layout) {
    const auto place = files::placeWhere(layouts, [=](const Pair& pair) { return pair.layout == layout; });
    files::ByteWriter out;
    out.write<std::int32_t>(place ? layouts.at(*place).geometry : blankGeometry);
    if (layout == ppLayoutTitle) {
        out.write<std::uint8_t>(drawing::placeholderCode(ppPlaceholderCenterTitle));
        out.write<std::uint8_t>(drawing::placeholderCode(ppPlaceholderSubtitle));
    } else if (layout == ppLayoutText || layout == ppLayoutTitleOnly) {
        out.write<std::uint8_t>(drawing::placeholderCode(ppPlaceholderTitle));
        out.write<std::uint8_t>(layout == ppLayoutText ? drawing::placeholderCode(ppPlaceholderBody) : 0);
    } else {
        out.fill(2);
    }
    return out.fill(6).take();
}

} // namespace simulator::powerpoint
