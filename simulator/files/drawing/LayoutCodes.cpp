#include "simulator/files/drawing/LayoutCodes.h"

#include "simulator/files/bytes/Tables.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/PropertyIds.h"

#include <array>

namespace simulator::drawing {

namespace {

constexpr std::uint32_t wrapped = 0;
constexpr std::uint32_t unwrapped = 2;

struct Anchoring {
    MsoVerticalAnchor anchor;
    bool centered;

    friend bool operator==(const Anchoring&, const Anchoring&) = default;
};

/// By code, from 0.
constexpr auto anchors = std::to_array<Anchoring>({
    {msoAnchorTop, false},
    {msoAnchorMiddle, false},
    {msoAnchorBottom, false},
    {msoAnchorTop, true},
    {msoAnchorMiddle, true},
    {msoAnchorBottom, true},
    {msoAnchorTopBaseline, false},
    {msoAnchorBottomBaseLine, false},
    {msoAnchorTopBaseline, true},
    {msoAnchorBottomBaseLine, true},
});
/// By code, from 0.
constexpr std::array flows{
    msoTextOrientationHorizontal, msoTextOrientationVerticalFarEast,          msoTextOrientationUpward,
    msoTextOrientationDownward,   msoTextOrientationHorizontalRotatedFarEast, msoTextOrientationVertical};

template <typename Table, typename Value>
Value fromCode(const Table& table, const Looks& looks, std::uint16_t id, Value otherwise) {
    const std::uint32_t place = looks.number(id, 0);
    return place < table.size() ? table.at(place) : otherwise;
}

template <typename Table, typename Value> std::uint32_t toCode(const Table& table, Value value) noexcept {
    return static_cast<std::uint32_t>(files::placeIn(table, value).value_or(0));
}

} // namespace

TextLayout readLayout(const Looks& looks) {
    TextLayout layout;
    layout.autoSize =
        looks.flag(property::textFlags, flag::fitShapeToText, false) ? ppAutoSizeShapeToFitText : ppAutoSizeNone;
    layout.wordWrap = looks.number(property::wrapText, wrapped) != unwrapped;
    layout.marginLeft = looks.points(property::textLeft, layout.marginLeft);
    layout.marginTop = looks.points(property::textTop, layout.marginTop);
    layout.marginRight = looks.points(property::textRight, layout.marginRight);
    layout.marginBottom = looks.points(property::textBottom, layout.marginBottom);
    const auto [anchor, centered] = fromCode(anchors, looks, property::anchorText, Anchoring{layout.anchor, false});
    layout.anchor = anchor;
    layout.centered = centered;
    layout.orientation = fromCode(flows, looks, property::textFlow, layout.orientation);
    return layout;
}

void writeLayout(PropertyTable& properties, const TextLayout& layout) {
    properties.set(property::textLeft, emu(layout.marginLeft));
    properties.set(property::textTop, emu(layout.marginTop));
    properties.set(property::textRight, emu(layout.marginRight));
    properties.set(property::textBottom, emu(layout.marginBottom));
    properties.set(property::wrapText, layout.wordWrap ? wrapped : unwrapped);
    properties.set(property::anchorText, toCode(anchors, Anchoring{layout.anchor, layout.centered}));
    properties.set(property::textFlow, toCode(flows, layout.orientation));
    properties.setFlag(property::textFlags, flag::fitShapeToText, layout.autoSize == ppAutoSizeShapeToFitText);
}

} // namespace simulator::drawing
