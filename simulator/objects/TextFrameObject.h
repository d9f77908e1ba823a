#pragma once

#include "simulator/objects/TextRangeObject.h"

namespace simulator {

/// TextFrame: the text of a shape and how it stands in it. Members raise `errors::gone` where the shape is gone.
class TextFrameObject final : public PowerPointObject {
public:
    TextFrameObject(ProcessPtr process, const ShapePtr& shape);

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] MsoTriState hasText() const;
    /// The whole text.
    [[nodiscard]] std::shared_ptr<TextRangeObject> textRange() const;
    void deleteText();

    [[nodiscard]] PpAutoSize autoSize() const;
    void setAutoSize(PpAutoSize autoSize);
    [[nodiscard]] MsoTriState wordWrap() const;
    void setWordWrap(MsoTriState wraps);
    /// In points.
    template <float TextLayout::*which> [[nodiscard]] float margin() const { return layout().*which; }
    /// Raises an invalid request for a negative margin.
    template <float TextLayout::*which> void setMargin(float points) { changeMargin(which, points); }
    [[nodiscard]] MsoTextOrientation orientation() const;
    void setOrientation(MsoTextOrientation orientation);
    /// Whether the block of text stands in the middle of the shape.
    [[nodiscard]] MsoHorizontalAnchor horizontalAnchor() const;
    void setHorizontalAnchor(MsoHorizontalAnchor anchor);
    [[nodiscard]] MsoVerticalAnchor verticalAnchor() const;
    void setVerticalAnchor(MsoVerticalAnchor anchor);

    /// The shape.
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    [[nodiscard]] TextLayout layout() const;
    void changeMargin(float TextLayout::*margin, float points);

    TextPart part_;
};

} // namespace simulator
