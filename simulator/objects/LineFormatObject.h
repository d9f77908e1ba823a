#pragma once

#include "simulator/objects/ColorFormatObject.h"
#include "simulator/objects/NodeSet.h"

namespace simulator {

/// LineFormat: the outline of some shapes.
class LineFormatObject final : public NodeSetObject<Shape> {
public:
    LineFormatObject(SessionPtr session, const ShapeSet& shapes)
        : NodeSetObject(std::move(session), leavesOf(shapes)) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] MsoTriState visible() const;
    void setVisible(MsoTriState visible);
    /// Points, 0 to 1584.
    [[nodiscard]] float weight() const;
    void setWeight(float points);
    [[nodiscard]] std::shared_ptr<ColorFormatObject> foreColor() const;
    /// 1 (msoLineSolid) to 8.
    [[nodiscard]] std::int32_t dashStyle() const;
    void setDashStyle(std::int32_t style);
};

} // namespace simulator
