#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class ShapeObject;

/// GroupShapes: the items of a group, from back to front; a group inside the group is one item, or
/// stands for its own where PowerPoint follows its documentation.
class GroupShapesObject final : public NodeSetObject<Shape> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(items().size()); }
    /// By place from 1, or by name.
    [[nodiscard]] std::shared_ptr<ShapeObject> item(const automation::Value& index) const;
    /// The group.
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    [[nodiscard]] std::vector<ShapePtr> items() const;
};

} // namespace simulator
