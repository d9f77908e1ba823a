#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class CellObject;
class ColumnsObject;
class RowsObject;
class ShapeObject;

/// Table: the rows, columns and cells of a shape that is a table.
class TableObject final : public NodeSetObject<Shape> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    /// The shape.
    [[nodiscard]] automation::ObjectPtr owner() const override;
    /// The cell that covers a row and a column, from 1; a merged one covers several.
    [[nodiscard]] std::shared_ptr<CellObject> cell(std::int32_t row, std::int32_t column) const;
    [[nodiscard]] std::shared_ptr<RowsObject> rows() const;
    [[nodiscard]] std::shared_ptr<ColumnsObject> columns() const;
    [[nodiscard]] PpDirection tableDirection() const;
    /// 1 (ppDirectionLeftToRight) or 2; the columns change sides.
    void setTableDirection(PpDirection direction);
};

} // namespace simulator
