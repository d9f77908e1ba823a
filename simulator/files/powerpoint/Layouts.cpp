#include "simulator/files/powerpoint/Layouts.h"

#include "simulator/files/Bytes.h"
#include "simulator/files/drawing/Placeholders.h"

#include <algorithm>
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
    const auto found = std::find_if(layouts.begin(), layouts.end(),
                                    [geometry](const Pair& pair) { return pair.geometry == geometry; });
    return static_cast<PpSlideLayout>(found == layouts.end() ? customLayout : found->layout);
}

std::string layoutBytes(PpSlideLayout layout) {
    const auto found =
        std::find_if(layouts.begin(), layouts.end(), [layout](const Pair& pair) { return pair.layout == layout; });
    files::ByteWriter out;
    out.write<std::int32_t>(found == layouts.end() ? blankGeometry : found->geometry);
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
