#pragma once

#include "simulator/objects/ColorFormatObject.h"
#include "simulator/objects/NodeSet.h"

namespace simulator {

/// ShadowFormat: the shadow of some shapes. A shape shows either a shadow or a third dimension: the one given last.
class ShadowFormatObject final : public NodeSetObject<Shape> {
public:
    ShadowFormatObject(SessionPtr session, const ShapeSet& shapes)
        : NodeSetObject(std::move(session), leavesOf(shapes)) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] MsoTriState visible() const;
    void setVisible(MsoTriState visible);
    /// The style, 1 (msoShadow1) to 20, -2 where none was chosen; choosing one shows the shadow.
    [[nodiscard]] std::int32_t type() const;
    void setType(std::int32_t type);
    [[nodiscard]] std::shared_ptr<ColorFormatObject> foreColor() const;
    /// Points to the right of the shape, and below it.
    [[nodiscard]] float offsetX() const;
    void setOffsetX(float points);
    [[nodiscard]] float offsetY() const;
    void setOffsetY(float points);
    void incrementOffsetX(float points);
    void incrementOffsetY(float points);
    [[nodiscard]] MsoTriState obscured() const;
    void setObscured(MsoTriState obscured);
};

} // namespace simulator
