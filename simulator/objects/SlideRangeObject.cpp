#include "simulator/objects/SlideRangeObject.h"

#include "simulator/objects/SlideObject.h"

namespace simulator {

const automation::MemberTable& SlideRangeObject::members() const {
    using automation::method;
    using automation::property;
    using This = SlideRangeObject;
    static const automation::MemberTable table = sharedMembers().with({
        method<&This::item>(u"Item", u"Index").asDefault(),
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
    });
    return table;
}

std::shared_ptr<SlideObject> SlideRangeObject::item(const automation::Value& index) const {
    const auto nameAt = [this](std::size_t place) { return nodes().at(place)->name; };
    return std::make_shared<SlideObject>(process(),
                                         nodes().at(placeIn(nodes().size(), index, u"SlideRange.Item", nameAt)));
}

} // namespace simulator
