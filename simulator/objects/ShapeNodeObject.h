#pragma once

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

/// ShapeNode: the corner or control point at a place of a freeform. Members raise `errors::gone` once there is none.
class ShapeNodeObject final : public PowerPointObject {
public:
    /// `place` counts from 0.
    ShapeNodeObject(ProcessPtr process, std::weak_ptr<Shape> shape, std::size_t place)
        : PowerPointObject(std::move(process)), shape_(std::move(shape)), place_(place) {}

    [[nodiscard]] const automation::MemberTable& members() const override;
    [[nodiscard]] automation::ObjectPtr owner() const override;

    /// An array of one point, which is an array of its two coordinates.
    [[nodiscard]] automation::Array points() const;
    /// Of the segment behind a corner, or of the one that a control point belongs to.
    [[nodiscard]] MsoSegmentType segmentType() const;

private:
    /// The shape, which has a node at this place.
    [[nodiscard]] ShapePtr shape() const;

    std::weak_ptr<Shape> shape_;
    std::size_t place_;
};

} // namespace simulator
