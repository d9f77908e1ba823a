#include "simulator/objects/SlideShowWindowsObject.h"

#include "simulator/objects/CollectionLookup.h"
#include "simulator/objects/SlideShowWindowObject.h"

namespace simulator {

const automation::MemberTable& SlideShowWindowsObject::members() const {
    using automation::method;
    using automation::property;
    using This = SlideShowWindowsObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        method<&This::item>(u"Item", u"Index").asDefault(),
    });
    return table;
}

std::int32_t SlideShowWindowsObject::count() const {
    return static_cast<std::int32_t>(process()->slideShows().size());
}

std::shared_ptr<SlideShowWindowObject> SlideShowWindowsObject::item(std::int32_t index) const {
    const std::vector<SlideShowWindowPtr>& shows = process()->slideShows();
    return std::make_shared<SlideShowWindowObject>(process(),
                                                   shows[placeIn(shows.size(), index, u"SlideShowWindows.Item")]);
}

} // namespace simulator
