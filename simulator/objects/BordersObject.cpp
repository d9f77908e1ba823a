#include "simulator/objects/BordersObject.h"

#include "simulator/objects/CellObject.h"
#include "simulator/objects/LineFormatObject.h"
#include "simulator/objects/TableDivisions.h"

namespace simulator {

const automation::MemberTable& BordersObject::members() const {
    using automation::method;
    using automation::property;
    using This = BordersObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        method<&This::item>(u"Item", u"BorderType").asDefault(),
    });
    return table;
}

automation::ObjectPtr BordersObject::owner() const {
    return std::make_shared<CellObject>(process(), nodes().first());
}

std::shared_ptr<LineFormatObject> BordersObject::item(PpBorderType borderType) const {
    errors::demandWithin(borderType, ppBorderTop, ppBorderDiagonalUp, u"Borders.Item");
    const ShapePtr table = nodes().first()->group();
    TableGrid grid = gridOf(*table);
    bool isChanged = grid.divideBorders(false); // a file may have one line for several sides, and none for others
    std::vector<ShapePtr> lines;
    for (const ShapePtr& cell : nodes().all()) {
        std::vector<ShapePtr> own = grid.linesOn(grid.partOf(*cell), borderType);
        if (own.empty()) {
            grid.addDiagonal(grid.partOf(*cell), borderType);
            own = grid.linesOn(grid.partOf(*cell), borderType);
            isChanged = true;
        }
        lines.insert(lines.end(), own.begin(), own.end());
    }
    if (isChanged) {
        grid.commit(table);
    }
    return std::make_shared<LineFormatObject>(process(), lines);
}

} // namespace simulator
