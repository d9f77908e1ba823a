#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class BordersObject;
class ShapeObject;
class TableObject;

/// Cell: one cell of a table.
class CellObject final : public NodeSetObject<Shape> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] automation::ObjectPtr owner() const override;
    [[nodiscard]] std::shared_ptr<BordersObject> borders() const;
    /// The shape that holds the cell's text and fill.
    [[nodiscard]] std::shared_ptr<ShapeObject> shape() const;
    [[nodiscard]] bool selected() const;
    /// Makes one cell of this, another of the table and all between them, with all their texts. Raises an invalid
    /// request where a merged cell reaches out from there.
    void merge(const automation::ObjectPtr& mergeTo);
    /// Divides it into so many rows and columns, from 1.
    void split(std::int32_t numRows, std::int32_t numColumns);
    /// Raises an invalid request unless the slide is shown.
    void select() const;
};

} // namespace simulator
