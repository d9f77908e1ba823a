#include "simulator/objects/CommandBarControlsObject.h"

#include "simulator/objects/CollectionLookup.h"
#include "simulator/objects/CommandBarObject.h"

namespace simulator {

const automation::MemberTable& CommandBarControlsObject::members() const {
    using automation::property;
    using This = CommandBarControlsObject;
    static const automation::MemberTable table = officeMembers().with({
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        property<&This::item>(u"Item").asDefault(),
    });
    return table;
}

std::shared_ptr<CommandBarControlObject> CommandBarControlsObject::item(const automation::Value& index) const {
    const auto nameAt = [this](std::size_t place) { return controls()[place].caption; };
    const std::size_t place = placeIn(controls().size(), index, u"CommandBarControls.Item", nameAt);
    return std::make_shared<CommandBarControlObject>(process(), bar_, place);
}

automation::ObjectPtr CommandBarControlsObject::owner() const {
    return std::make_shared<CommandBarObject>(process(), bar_);
}

} // namespace simulator
