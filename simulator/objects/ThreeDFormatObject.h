#pragma once

#include "simulator/objects/ShapeFormatObject.h"

#include <algorithm>

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
    void setDepth(float points) { setting<&ThreeD::depth>(points, -600.0F, 9600.0F); }
    /// Which way it is cast, 1 (msoExtrusionTopLeft) to 9.
    void setExtrusionDirection(std::int32_t direction) { setting<&ThreeD::direction>(direction, 1, 9); }
    void setLighting(std::int32_t direction) { setting<&ThreeD::lighting>(direction, 1, 9); }
    void setSoftness(std::int32_t softness) { setting<&ThreeD::softness>(softness, 1, 3); }
    void setMaterial(std::int32_t material) { setting<&ThreeD::material>(material, 1, 4); }
    void setPerspective(MsoTriState perspective) {
        setting<&ThreeD::perspective>(perspective != msoFalse, false, true);
    }
    /// Degrees, -90 to 90.
    template <float ThreeD::*rotation> void turnTo(float degrees) { setting<rotation>(degrees, -90.0F, 90.0F); }
    void resetRotation() {
        change([](ThreeD& threeD) { threeD.rotationX = threeD.rotationY = 0; });
    }
    /// Turns so many degrees further, up to the limit.
    template <float ThreeD::*rotation> void turnBy(float degrees) {
        change([degrees](ThreeD& threeD) { threeD.*rotation = std::clamp(threeD.*rotation + degrees, -90.0F, 90.0F); });
    }
    /// A colour of its own, whatever the fill is.
    [[nodiscard]] std::shared_ptr<ColorFormatObject> extrusionColor() const;
    /// 1 where it follows the fill, 2 where it has one of its own.
    [[nodiscard]] std::int32_t extrusionColorType() const;
    void setExtrusionColorType(std::int32_t type);

private:
    /// Changes a setting: what is shown is a style no longer.
    template <typename Change> void change(const Change& change) {
        nodes().change([&change](Shape& shape) {
            change(shape.threeD);
            shape.threeD.preset = mixedStyle;
        });
    }
    template <auto part, typename Value> void setting(Value value, Value first, Value last) {
        errors::demandWithin(value, first, last, u"ThreeDFormat");
        change([value](ThreeD& threeD) { threeD.*part = value; });
    }

    static constexpr std::int32_t mixedStyle = -2;
};

} // namespace simulator
