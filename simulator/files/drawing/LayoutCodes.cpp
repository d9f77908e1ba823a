#include "simulator/files/drawing/LayoutCodes.h"

#include "simulator/files/Tables.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/PropertyIds.h"

#include <array>

namespace simulator::drawing {

namespace {

constexpr std::uint32_t wrapped = 0;
constexpr std::uint32_t unwrapped = 2;

/// By code, from 0; those that centre a text stand in for their like without.
constexpr std::array anchors{msoAnchorTop,    msoAnchorMiddle, msoAnchorBottom,      msoAnchorTop,
                             msoAnchorMiddle, msoAnchorBottom, msoAnchorTopBaseline, msoAnchorBottomBaseLine};
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
    layout.anchor = fromCode(anchors, looks, property::anchorText, layout.anchor);
    layout.orientation = fromCode(flows, looks, property::textFlow, layout.orientation);
    return layout;
}

void writeLayout(PropertyTable& properties, const TextLayout& layout) {
    properties.set(property::textLeft, emu(layout.marginLeft));
    properties.set(property::textTop, emu(layout.marginTop));
    properties.set(property::textRight, emu(layout.marginRight));
    properties.set(property::textBottom, emu(layout.marginBottom));
    properties.set(property::wrapText, layout.wordWrap ? wrapped : unwrapped);
    properties.set(property::anchorText, toCode(anchors, layout.anchor));
    properties.set(property::textFlow, toCode(flows, layout.orientation));
    properties.setFlag(property::textFlags, flag::fitShapeToText, layout.autoSize == ppAutoSizeShapeToFitText);
}

} // namespace simulator::drawing
