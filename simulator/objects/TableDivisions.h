#pragma once

#include "simulator/document/TableGrid.h"
#include "simulator/objects/NodeSet.h"

namespace simulator {

class CellRangeObject;
class ColumnsObject;
class RowsObject;
class TableObject;

/// Rows and columns of a table. Raises an invalid request where it has come so far from its slide that numbers no
/// longer tell its cells apart.
[[nodiscard]] TableGrid gridOf(const Shape& table);

/// What Row and Column have in common: the cells between two edges of a table. Every member raises `errors::outOfRange`
/// once the table has fewer rows or columns.
class TableDivisionObject : public PowerPointObject {
public:
    /// `place` is the row's or column's, from 0.
    TableDivisionObject(ProcessPtr process, std::weak_ptr<Shape> table, TableAxis axis, std::size_t place)
        : PowerPointObject(std::move(process)), table_(std::move(table)), axis_(axis), place_(place) {}

    /// Each cell once.
    [[nodiscard]] std::shared_ptr<CellRangeObject> cells() const;
    /// Raises an invalid request for the last row or column.
    void erase();
    /// Raises an invalid request unless the slide is shown.
    void select() const;
    /// In points.
    [[nodiscard]] float length() const;
    /// What lies behind moves; a row keeps what its text needs, a column what its cells' margins need.
    void setLength(float points);

protected:
    [[nodiscard]] static const automation::MemberTable& sharedMembers();
    [[nodiscard]] const std::weak_ptr<Shape>& table() const noexcept { return table_; }

private:
    /// Its place in the grid; raises where it is gone.
    [[nodiscard]] std::size_t placeIn(const TableGrid& grid) const;
    [[nodiscard]] std::vector<ShapePtr> cellShapes() const;

    std::weak_ptr<Shape> table_;
    TableAxis axis_;
    std::size_t place_;
};

/// What Rows and Columns have in common.
class TableDivisionsObject : public NodeSetObject<Shape> {
public:
    TableDivisionsObject(ProcessPtr process, const ShapePtr& table, TableAxis axis)
        : NodeSetObject(std::move(process), table), axis_(axis) {}

    [[nodiscard]] automation::ObjectPtr owner() const override;
    [[nodiscard]] std::int32_t count() const;

protected:
    [[nodiscard]] static const automation::MemberTable& sharedMembers();
    /// Place from 0 of an index from 1.
    [[nodiscard]] std::size_t placeOf(std::int32_t index, std::u16string_view member) const;
    /// Adds one before an index from 1, or behind the last; its place from 0.
    std::size_t addBefore(std::optional<std::int32_t> index, std::u16string_view member);

private:
    TableAxis axis_;
};

/// Row: one row of a table.
class RowObject final : public TableDivisionObject {
public:
    RowObject(ProcessPtr process, std::weak_ptr<Shape> table, std::size_t place)
        : TableDivisionObject(std::move(process), std::move(table), TableAxis::Rows, place) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] automation::ObjectPtr owner() const override;
};

/// Column: one column of a table, the first where the table begins.
class ColumnObject final : public TableDivisionObject {
public:
    ColumnObject(ProcessPtr process, std::weak_ptr<Shape> table, std::size_t place)
        : TableDivisionObject(std::move(process), std::move(table), TableAxis::Columns, place) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] automation::ObjectPtr owner() const override;
};

/// Rows: the rows of a table.
class RowsObject final : public TableDivisionsObject {
public:
    RowsObject(ProcessPtr process, const ShapePtr& table)
        : TableDivisionsObject(std::move(process), table, TableAxis::Rows) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::shared_ptr<RowObject> item(std::int32_t index) const;
    /// A row in the format of its neighbour, before a row, or at the end where that is left out or -1.
    std::shared_ptr<RowObject> add(std::optional<std::int32_t> beforeRow);
};

/// Columns: the columns of a table.
class ColumnsObject final : public TableDivisionsObject {
public:
    ColumnsObject(ProcessPtr process, const ShapePtr& table)
        : TableDivisionsObject(std::move(process), table, TableAxis::Columns) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::shared_ptr<ColumnObject> item(std::int32_t index) const;
    /// A column in the format of its neighbour, before a column, or at the end where that is left out or -1.
    std::shared_ptr<ColumnObject> add(std::optional<std::int32_t> beforeColumn);
};

} // namespace simulator
