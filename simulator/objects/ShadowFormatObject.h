#pragma once

#include "simulator/objects/ShapeFormatObject.h"

namespace simulator {

/// ShadowFormat: the shadow of some shapes. A shape shows either a shadow or a third dimension: the one given last.
class ShadowFormatObject final : public ShapeFormatObject<&Shape::shadow> {
public:
    using ShapeFormatObject::ShapeFormatObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    void setVisible(MsoTriState visible);
    /// A style, 1 (msoShadow1) to 20, which reads as -2 where none was chosen; choosing one shows the shadow.
    void setType(std::int32_t type);
    /// Raises an invalid request outside 0 to 1.
    void setTransparency(float transparency);
    /// Moves the shadow by so many points to the right, or down.
    template <float Shadow::*offset> void increment(float points) {
        nodes().change([points](Shape& shape) { shape.shadow.*offset += points; });
    }
};

} // namespace simulator
