#pragma once

#include "simulator/objects/ShapeMembers.h"

namespace simulator {

/// Shape: one shape of a slide, or one item of a group.
class ShapeObject final : public ShapeMembers {
public:
    ShapeObject(ProcessPtr process, std::weak_ptr<Shape> shape) : ShapeMembers(std::move(process), std::move(shape)) {}

    [[nodiscard]] const automation::MemberTable& members() const override { return sharedMembers(); }
};

} // namespace simulator
