#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

/// PageSetup: the size of a presentation's slides, in points.
class PageSetupObject final : public NodeSetObject<Presentation> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;
    [[nodiscard]] automation::ObjectPtr owner() const override;

    [[nodiscard]] float slideWidth() const { return node()->slideWidth; }
    /// 72 to 4032 points; shapes stay where they are.
    void setSlideWidth(float points);
    [[nodiscard]] float slideHeight() const { return node()->slideHeight; }
    void setSlideHeight(float points);
    /// 1 (msoOrientationHorizontal) or 2 (msoOrientationVertical).
    [[nodiscard]] std::int32_t slideOrientation() const;
    void setSlideOrientation(std::int32_t orientation);
};

} // namespace simulator
