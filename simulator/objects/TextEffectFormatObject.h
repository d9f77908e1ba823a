#pragma once

#include "simulator/objects/ShapeFormatObject.h"

namespace simulator {

/// TextEffectFormat: the text of a WordArt object. Every member raises an invalid request for any other shape.
class TextEffectFormatObject final : public ShapeFormatObject<&Shape::textEffect> {
public:
    using ShapeFormatObject::ShapeFormatObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    /// Points.
    void setFontSize(float points);
    /// 0 (msoTextEffect1) to 29.
    void setPresetTextEffect(std::int32_t preset);
};

} // namespace simulator
