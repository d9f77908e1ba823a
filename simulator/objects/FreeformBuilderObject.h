#pragma once

#include "simulator/document/FreeformPath.h"
#include "simulator/objects/PowerPointObject.h"

#include <optional>

namespace simulator {

class ShapeObject;

/// FreeformBuilder: a freeform while it is drawn on a slide.
class FreeformBuilderObject final : public PowerPointObject {
public:
    /// Starts at a point, in points on the slide.
    FreeformBuilderObject(ProcessPtr process, std::weak_ptr<Slide> slide, float x, float y)
        : PowerPointObject(std::move(process)), slide_(std::move(slide)), path_({x, y}) {}

    [[nodiscard]] const automation::MemberTable& members() const override;
    [[nodiscard]] automation::ObjectPtr owner() const override;

    /// Draws a straight segment or a smooth curve to the first point, or a curve with two control points and its end.
    void addNodes(MsoSegmentType segmentType, MsoEditingType editingType, float x1, float y1, std::optional<float> x2,
                  std::optional<float> y2, std::optional<float> x3, std::optional<float> y3);
    /// Puts the freeform on the slide, in front; raises an invalid request where nothing was drawn.
    std::shared_ptr<ShapeObject> convertToShape();

private:
    std::weak_ptr<Slide> slide_;
    FreeformPath path_;
};

} // namespace simulator
