#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

/// ThreeDFormat: the third dimension of some shapes. A shape shows either a shadow or a third dimension: the one given
/// last.
class ThreeDFormatObject final : public NodeSetObject<Shape> {
public:
    ThreeDFormatObject(SessionPtr session, const ShapeSet& shapes)
        : NodeSetObject(std::move(session), leavesOf(shapes)) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] MsoTriState visible() const;
    void setVisible(MsoTriState visible);
    /// The style, 1 (msoThreeD1) to 20, or mixed (-2) where none was chosen or a setting has changed since.
    [[nodiscard]] std::int32_t presetThreeDFormat() const;
    /// Shows the third dimension in a style.
    void setThreeDFormat(std::int32_t presetThreeDFormat);
    /// Points, -600 to 9600.
    [[nodiscard]] float depth() const;
    void setDepth(float points);
};

} // namespace simulator
