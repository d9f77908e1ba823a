#pragma once

#include "simulator/objects/ShapeFormatObject.h"

namespace simulator {

/// LineFormat: the outline of some shapes.
class LineFormatObject final : public ShapeFormatObject<&Shape::line> {
public:
    using ShapeFormatObject::ShapeFormatObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    /// Points, 0 to 1584.
    void setWeight(float points);
    /// 1 (msoLineSolid) to 8.
    void setDashStyle(std::int32_t style);
    /// 1 (msoPattern5Percent) to 48.
    void setPattern(std::int32_t pattern);
    /// 1 (msoLineSingle) to 5.
    void setStyle(std::int32_t style);
    /// 0 opaque to 1 clear.
    void setTransparency(float transparency);

    /// What an arrowhead is like, -2 where the shapes differ.
    template <ArrowHead Line::*end, std::int32_t ArrowHead::*part> [[nodiscard]] std::int32_t arrow() const {
        constexpr std::int32_t mixed = -2;
        return nodes().common(mixed, [](const Shape& shape) { return shape.line.*end.*part; });
    }
    /// Styles are 1 (msoArrowheadNone) to 6, lengths and widths 1 to 3.
    template <ArrowHead Line::*end, std::int32_t ArrowHead::*part> void setArrow(std::int32_t value) {
        constexpr std::int32_t last = part == &ArrowHead::style ? 6 : 3;
        errors::demandWithin(value, 1, last, u"LineFormat.Arrowhead");
        nodes().change([value](Shape& shape) { shape.line.*end.*part = value; });
    }
};

} // namespace simulator
