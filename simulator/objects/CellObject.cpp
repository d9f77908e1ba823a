#include "simulator/objects/CellObject.h"

#include "automation/LateBound.h"
#include "simulator/objects/BordersObject.h"
#include "simulator/objects/HandedShape.h"
#include "simulator/objects/ShapeObject.h"
#include "simulator/objects/ShapeSelecting.h"
#include "simulator/objects/TableDivisions.h"
#include "simulator/objects/TableObject.h"

#include <algorithm>

namespace simulator {

const automation::MemberTable& CellObject::members() const {
    using automation::method;
    using automation::property;
    using This = CellObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::borders>(u"Borders"),
        method<&This::merge>(u"Merge", u"MergeTo"),
        method<&This::select>(u"Select"),
        property<&This::selected>(u"Selected"),
        property<&This::shape>(u"Shape"),
        method<&This::split>(u"Split", u"NumRows NumColumns"),
    });
    return table;
}

automation::ObjectPtr CellObject::owner() const {
    return std::make_shared<TableObject>(process(), node()->group());
}

std::shared_ptr<BordersObject> CellObject::borders() const {
    return std::make_shared<BordersObject>(process(), node());
}

std::shared_ptr<ShapeObject> CellObject::shape() const {
    return std::make_shared<ShapeObject>(process(), node());
}

bool CellObject::selected() const {
    const SlidePtr slide = simulator::alive(node()->slide);
    const DocumentWindowPtr window = process()->windowOf(*simulator::alive(slide->presentation));
    const std::vector<ShapePtr> shapes = window ? window->selection.shapes() : std::vector<ShapePtr>();
    return std::find(shapes.begin(), shapes.end(), node()) != shapes.end();
}

void CellObject::merge(const automation::ObjectPtr& mergeTo) {
    const std::int32_t id = idBeside(*node(), automation::LateBound(mergeTo).get(u"Shape").to<automation::ObjectPtr>());
    const ShapePtr table = node()->group();
    const auto other = std::find_if(table->items().begin(), table->items().end(),
                                    [id](const ShapePtr& item) { return item->id == id && item->type != msoLine; });
    if (other == table->items().end()) {
        errors::invalidRequest(u"Cell.Merge", u"MergeTo n'est pas une cellule du même tableau.");
    }
    TableGrid grid = gridOf(*table);
    if (!grid.merge(grid.partOf(*node()), grid.partOf(**other))) {
        errors::invalidRequest(u"Cell.Merge", u"Ces cellules ne forment pas un rectangle.");
    }
    grid.fitRows();
    grid.commit(table);
    markChanged(*table);
}

void CellObject::split(std::int32_t numRows, std::int32_t numColumns) {
    constexpr std::int32_t most = 25;
    errors::demandWithin(numRows, 1, most, u"Cell.Split");
    errors::demandWithin(numColumns, 1, most, u"Cell.Split");
    const ShapePtr table = node()->group();
    TableGrid grid = gridOf(*table);
    if (!grid.split(grid.partOf(*node()), static_cast<std::size_t>(numRows), static_cast<std::size_t>(numColumns))) {
        errors::invalidRequest(u"Cell.Split", u"La cellule est trop petite, ou le tableau trop grand.");
    }
    grid.fitRows();
    grid.commit(table);
    markChanged(*table);
}

void CellObject::select() const {
    selectShapes(*process(), {node()}, true);
}

} // namespace simulator
