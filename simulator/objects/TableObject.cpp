#include "simulator/objects/TableObject.h"

#include "simulator/objects/CellObject.h"
#include "simulator/objects/ShapeObject.h"
#include "simulator/objects/TableDivisions.h"

namespace simulator {

const automation::MemberTable& TableObject::members() const {
    using automation::method;
    using automation::property;
    using This = TableObject;
    static const automation::MemberTable table = commonMembers().with({
        method<&This::cell>(u"Cell", u"Row Column"),
        property<&This::columns>(u"Columns"),
        property<&This::rows>(u"Rows"),
        property<&This::tableDirection, &This::setTableDirection>(u"TableDirection"),
    });
    return table;
}

automation::ObjectPtr TableObject::owner() const {
    return std::make_shared<ShapeObject>(process(), node());
}

std::shared_ptr<CellObject> TableObject::cell(std::int32_t row, std::int32_t column) const {
    const TableGrid grid = gridOf(*node());
    const std::size_t fromTop = placeIn(grid.count(TableAxis::Rows), row, u"Table.Cell");
    const std::size_t across = placeIn(grid.count(TableAxis::Columns), column, u"Table.Cell");
    return std::make_shared<CellObject>(process(),
                                        grid.cellAt(fromTop, grid.onSlide(TableAxis::Columns, across)).shape);
}

std::shared_ptr<RowsObject> TableObject::rows() const {
    return std::make_shared<RowsObject>(process(), node());
}

std::shared_ptr<ColumnsObject> TableObject::columns() const {
    return std::make_shared<ColumnsObject>(process(), node());
}

PpDirection TableObject::tableDirection() const {
    return node()->table->isRightToLeft ? ppDirectionRightToLeft : ppDirectionLeftToRight;
}

void TableObject::setTableDirection(PpDirection direction) {
    errors::demandWithin(direction, ppDirectionLeftToRight, ppDirectionRightToLeft, u"Table.TableDirection");
    if (direction == tableDirection()) {
        return;
    }
    const ShapePtr table = node();
    TableGrid grid = gridOf(*table);
    grid.mirror();
    grid.commit(table);
    markChanged(*table);
}

} // namespace simulator
