#include "simulator/objects/TableDivisions.h"

#include "simulator/objects/CellRangeObject.h"
#include "simulator/objects/ShapeSelecting.h"
#include "simulator/objects/TableObject.h"

#include <algorithm>

namespace simulator {

namespace {

constexpr std::u16string_view lastOne = u"Un tableau garde au moins une ligne et une colonne.";

} // namespace

TableGrid gridOf(const Shape& table) {
    TableGrid grid(table);
    if (!grid.isWhole()) {
        errors::invalidRequest(u"Table (membre inconnu)", u"Le tableau est trop loin de sa diapositive.");
    }
    return grid;
}

const automation::MemberTable& TableDivisionObject::sharedMembers() {
    using automation::method;
    using automation::property;
    using This = TableDivisionObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::cells>(u"Cells"),
        method<&This::erase>(u"Delete"),
        method<&This::select>(u"Select"),
    });
    return table;
}

std::size_t TableDivisionObject::placeIn(const TableGrid& grid) const {
    const auto index = static_cast<std::int32_t>(place_) + 1;
    return grid.onSlide(axis_, simulator::placeIn(grid.count(axis_), index, u"Table (membre inconnu)"));
}

std::vector<ShapePtr> TableDivisionObject::cellShapes() const {
    const TableGrid grid = gridOf(*simulator::alive(table_));
    const std::size_t place = placeIn(grid);
    const TableAxis along = axis_ == TableAxis::Rows ? TableAxis::Columns : TableAxis::Rows;
    std::vector<ShapePtr> shapes;
    for (std::size_t i = 0; i < grid.count(along); ++i) {
        const std::size_t across = grid.onSlide(along, i);
        const ShapePtr& shape =
            (axis_ == TableAxis::Rows ? grid.cellAt(place, across) : grid.cellAt(across, place)).shape;
        if (shapes.empty() || shapes.back() != shape) {
            shapes.push_back(shape);
        }
    }
    return shapes;
}

std::shared_ptr<CellRangeObject> TableDivisionObject::cells() const {
    return std::make_shared<CellRangeObject>(process(), cellShapes());
}

void TableDivisionObject::erase() {
    const ShapePtr table = simulator::alive(table_);
    TableGrid grid = gridOf(*table);
    const std::size_t place = placeIn(grid);
    if (grid.count(axis_) == 1) {
        errors::invalidRequest(u"Table (membre inconnu)", lastOne);
    }
    grid.erase(axis_, place);
    grid.commit(table);
    markChanged(*table);
}

void TableDivisionObject::select() const {
    selectShapes(*process(), cellShapes(), true);
}

float TableDivisionObject::length() const {
    const TableGrid grid = gridOf(*simulator::alive(table_));
    return grid.length(axis_, placeIn(grid));
}

void TableDivisionObject::setLength(float points) {
    if (points < 0) {
        errors::invalidValue(u"Table (membre inconnu)");
    }
    const ShapePtr table = simulator::alive(table_);
    TableGrid grid = gridOf(*table);
    grid.setLength(axis_, placeIn(grid), points);
    grid.commit(table);
    markChanged(*table);
}

const automation::MemberTable& TableDivisionsObject::sharedMembers() {
    using automation::property;
    using This = TableDivisionsObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
    });
    return table;
}

automation::ObjectPtr TableDivisionsObject::owner() const {
    return std::make_shared<TableObject>(process(), node());
}

std::int32_t TableDivisionsObject::count() const {
    return static_cast<std::int32_t>(gridOf(*node()).count(axis_));
}

std::size_t TableDivisionsObject::placeOf(std::int32_t index, std::u16string_view member) const {
    return placeIn(static_cast<std::size_t>(count()), index, member);
}

std::size_t TableDivisionsObject::addBefore(std::optional<std::int32_t> index, std::u16string_view member) {
    const ShapePtr table = node();
    TableGrid grid = gridOf(*table);
    const std::size_t last = grid.count(axis_);
    if (last == TableGrid::most) {
        errors::invalidRequest(member, u"Le tableau ne peut pas s'agrandir davantage.");
    }
    const std::size_t place = index.value_or(-1) == -1 ? last : placeIn(last, *index, member);
    // Where columns run to the left, what comes before one stands to its right.
    const bool isTurned = axis_ == TableAxis::Columns && grid.table().isRightToLeft;
    const std::size_t edge = isTurned ? last - place : place;
    const std::size_t neighbour = place == 0 ? 0 : place - 1;
    grid.insert(axis_, edge, grid.onSlide(axis_, neighbour));
    grid.fitRows();
    grid.commit(table);
    markChanged(*table);
    return place;
}

const automation::MemberTable& RowObject::members() const {
    using automation::property;
    using This = RowObject;
    static const automation::MemberTable table = sharedMembers().with({
        property<&This::length, &This::setLength>(u"Height"),
    });
    return table;
}

automation::ObjectPtr RowObject::owner() const {
    return std::make_shared<RowsObject>(process(), simulator::alive(table()));
}

const automation::MemberTable& ColumnObject::members() const {
    using automation::property;
    using This = ColumnObject;
    static const automation::MemberTable table = sharedMembers().with({
        property<&This::length, &This::setLength>(u"Width"),
    });
    return table;
}

automation::ObjectPtr ColumnObject::owner() const {
    return std::make_shared<ColumnsObject>(process(), simulator::alive(table()));
}

const automation::MemberTable& RowsObject::members() const {
    using automation::method;
    using This = RowsObject;
    static const automation::MemberTable table = sharedMembers().with({
        method<&This::item>(u"Item", u"Index").asDefault(),
        method<&This::add>(u"Add", u"BeforeRow"),
    });
    return table;
}

std::shared_ptr<RowObject> RowsObject::item(std::int32_t index) const {
    return std::make_shared<RowObject>(process(), node(), placeOf(index, u"Rows.Item"));
}

std::shared_ptr<RowObject> RowsObject::add(std::optional<std::int32_t> beforeRow) {
    return std::make_shared<RowObject>(process(), node(), addBefore(beforeRow, u"Rows.Add"));
}

const automation::MemberTable& ColumnsObject::members() const {
    using automation::method;
    using This = ColumnsObject;
    static const automation::MemberTable table = sharedMembers().with({
        method<&This::item>(u"Item", u"Index").asDefault(),
        method<&This::add>(u"Add", u"BeforeColumn"),
    });
    return table;
}

std::shared_ptr<ColumnObject> ColumnsObject::item(std::int32_t index) const {
    return std::make_shared<ColumnObject>(process(), node(), placeOf(index, u"Columns.Item"));
}

std::shared_ptr<ColumnObject> ColumnsObject::add(std::optional<std::int32_t> beforeColumn) {
    return std::make_shared<ColumnObject>(process(), node(), addBefore(beforeColumn, u"Columns.Add"));
}

} // namespace simulator
