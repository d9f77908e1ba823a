#include "simulator/objects/DocumentWindowsObject.h"

#include "simulator/objects/CollectionLookup.h"

namespace simulator {

const automation::MemberTable& DocumentWindowsObject::members() const {
    using automation::method;
    using automation::property;
    using This = DocumentWindowsObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        method<&This::item>(u"Item", u"Index").asDefault(),
    });
    return table;
}

std::int32_t DocumentWindowsObject::count() const {
    return static_cast<std::int32_t>(windows().size());
}

std::shared_ptr<DocumentWindowObject> DocumentWindowsObject::item(const automation::Value& index) const {
    const std::vector<DocumentWindowPtr> all = windows();
    const auto objectAt = [&](std::size_t place) {
        return std::make_shared<DocumentWindowObject>(session(), all[place]);
    };
    const auto nameAt = [&](std::size_t place) { return objectAt(place)->caption(); };
    return objectAt(placeIn(all.size(), index, u"DocumentWindows.Item", nameAt));
}

std::vector<DocumentWindowPtr> DocumentWindowsObject::windows() const {
    std::vector<DocumentWindowPtr> all = session()->windows();
    if (presentation_) {
        const PresentationPtr shown = simulator::alive(*presentation_);
        std::erase_if(all, [&](const DocumentWindowPtr& window) { return window->presentation.lock() != shown; });
    }
    return all;
}

} // namespace simulator
