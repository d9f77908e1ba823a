#pragma once

#include "simulator/objects/ShapeFormatObject.h"

namespace simulator {

/// ThreeDFormat: the third dimension of some shapes. A shape shows either a shadow or a third dimension: the one given
/// last.
class ThreeDFormatObject final : public ShapeFormatObject<&Shape::threeD> {
public:
    using ShapeFormatObject::ShapeFormatObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    void setVisible(MsoTriState visible);
    /// Shows the third dimension in a style, 1 (msoThreeD1) to 20, which reads as mixed (-2) once a setting has
    /// changed.
    void setThreeDFormat(std::int32_t presetThreeDFormat);
    /// Points, -600 to 9600.
    void setDepth(float points);
};

} // namespace simulator
