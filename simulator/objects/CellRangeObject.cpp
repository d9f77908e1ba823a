#include "simulator/objects/CellRangeObject.h"

#include "simulator/objects/BordersObject.h"
#include "simulator/objects/CellObject.h"
#include "simulator/objects/TableObject.h"

namespace simulator {

const automation::MemberTable& CellRangeObject::members() const {
    using automation::method;
    using automation::property;
    using This = CellRangeObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        method<&This::item>(u"Item", u"Index").asDefault(),
        property<&This::borders>(u"Borders"),
    });
    return table;
}

automation::ObjectPtr CellRangeObject::owner() const {
    return std::make_shared<TableObject>(process(), nodes().first()->group());
}

std::shared_ptr<CellObject> CellRangeObject::item(std::int32_t index) const {
    return std::make_shared<CellObject>(process(), nodes().at(placeIn(nodes().size(), index, u"CellRange.Item")));
}

std::shared_ptr<BordersObject> CellRangeObject::borders() const {
    return std::make_shared<BordersObject>(process(), nodes());
}

} // namespace simulator
