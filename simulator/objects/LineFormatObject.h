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
};

} // namespace simulator
