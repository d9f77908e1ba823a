#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class ShapeNodeObject;

/// ShapeNodes: the corners and control points of a freeform, in points on the slide. Moving the ends of a curve
/// together closes it, moving them apart opens it.
class ShapeNodesObject final : public NodeSetObject<Shape> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;
    [[nodiscard]] automation::ObjectPtr owner() const override;

    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(node()->nodes.size()); }
    /// By place from 1.
    [[nodiscard]] std::shared_ptr<ShapeNodeObject> item(std::int32_t index) const;
    /// Removes a corner with the segment that leads to it; a curve whose control point is removed becomes straight.
    /// Raises an invalid request where fewer than two corners would be left.
    void remove(std::int32_t index);
    /// Adds a segment behind a corner; takes its arguments as FreeformBuilder.AddNodes does.
    void insert(std::int32_t index, MsoSegmentType segmentType, MsoEditingType editingType, float x1, float y1,
                std::optional<float> x2, std::optional<float> y2, std::optional<float> x3, std::optional<float> y3);
    void setPosition(std::int32_t index, float x1, float y1);
    /// Makes the segment behind a corner, or the one that a control point belongs to, straight or curved.
    void setSegmentType(std::int32_t index, MsoSegmentType segmentType);

private:
    /// Gives `edit` a copy of the nodes and the place from 0 of one of them, and the shape what it makes of it.
    template <typename Edit> void edit(std::int32_t index, std::u16string_view member, const Edit& edit);
};

} // namespace simulator
