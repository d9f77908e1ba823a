#pragma once

#include "simulator/objects/ShapeFormatObject.h"

namespace simulator {

/// FillFormat: how some shapes are filled.
class FillFormatObject final : public ShapeFormatObject<&Shape::fill> {
public:
    using ShapeFormatObject::ShapeFormatObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    /// 0 opaque to 1 clear; raises an invalid request outside.
    void setTransparency(float transparency);
    /// What only fills of one type have; mixed (-2) for another.
    template <MsoFillType type, std::int32_t Fill::*part> [[nodiscard]] std::int32_t detail() const {
        return nodes().common(mixed,
                              [](const Shape& shape) { return shape.fill.type == type ? shape.fill.*part : mixed; });
    }

    void solid();
    void patterned(std::int32_t pattern);
    /// Styles 1 to 7, variants 1 to 4; a degree of 0 is darkest and of 1 lightest.
    void oneColorGradient(std::int32_t style, std::int32_t variant, float degree);
    void twoColorGradient(std::int32_t style, std::int32_t variant);
    void presetGradient(std::int32_t style, std::int32_t variant, std::int32_t presetGradientType);
    void presetTextured(std::int32_t presetTexture);
    void userTextured(const std::u16string& textureFile);
    void userPicture(const std::u16string& pictureFile);
    void background();

private:
    void become(MsoFillType type) const;
    void becomeGradient(std::int32_t style, std::int32_t variant) const;

    static constexpr std::int32_t mixed = -2;
};

} // namespace simulator
