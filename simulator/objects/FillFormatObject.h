#pragma once

#include "simulator/objects/ColorFormatObject.h"
#include "simulator/objects/NodeSet.h"

namespace simulator {

/// FillFormat: how some shapes are filled.
class FillFormatObject final : public NodeSetObject<Shape> {
public:
    FillFormatObject(SessionPtr session, const ShapeSet& shapes)
        : NodeSetObject(std::move(session), leavesOf(shapes)) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] MsoTriState visible() const;
    void setVisible(MsoTriState visible);
    [[nodiscard]] MsoFillType type() const;
    /// 0 opaque to 1 clear; raises an invalid request outside.
    [[nodiscard]] float transparency() const;
    void setTransparency(float transparency);
    [[nodiscard]] std::shared_ptr<ColorFormatObject> foreColor() const;
    [[nodiscard]] std::shared_ptr<ColorFormatObject> backColor() const;
    /// Mixed (-2) unless the fill is patterned.
    [[nodiscard]] std::int32_t pattern() const;
    /// Mixed (-2) unless the fill is a gradient.
    [[nodiscard]] std::int32_t gradientStyle() const;
    [[nodiscard]] std::int32_t gradientVariant() const;

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
    [[nodiscard]] std::int32_t detail(MsoFillType type, std::int32_t Fill::*part) const;
};

} // namespace simulator
