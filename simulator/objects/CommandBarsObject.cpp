#include "simulator/objects/CommandBarsObject.h"

#include "simulator/objects/CollectionLookup.h"

namespace simulator {

const automation::MemberTable& CommandBarsObject::members() const {
    using automation::property;
    using This = CommandBarsObject;
    static const automation::MemberTable table = officeMembers().with({
        property<&This::activeMenuBar>(u"ActiveMenuBar"),
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        property<&This::displayTooltips, &This::setDisplayTooltips>(u"DisplayTooltips"),
        property<&This::item>(u"Item").asDefault(),
    });
    return table;
}

std::int32_t CommandBarsObject::count() const {
    return static_cast<std::int32_t>(process()->settings().commandBars.bars.size());
}

std::shared_ptr<CommandBarObject> CommandBarsObject::item(const automation::Value& index) const {
    const auto& bars = process()->settings().commandBars.bars;
    const auto nameAt = [&](std::size_t place) { return bars[place].name; };
    return std::make_shared<CommandBarObject>(process(), placeIn(bars.size(), index, u"CommandBars.Item", nameAt));
}

std::shared_ptr<CommandBarObject> CommandBarsObject::activeMenuBar() const {
    return item(u"Menu Bar");
}

} // namespace simulator
