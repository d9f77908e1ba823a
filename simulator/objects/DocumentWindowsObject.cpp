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
        method<&This::arrange>(u"Arrange", u"ArrangeStyle"),
    });
    return table;
}

std::int32_t DocumentWindowsObject::count() const {
    return static_cast<std::int32_t>(windows().size());
}

std::shared_ptr<DocumentWindowObject> DocumentWindowsObject::item(const automation::Value& index) const {
    const std::vector<DocumentWindowPtr> all = windows();
    const auto objectAt = [&](std::size_t place) {
        return std::make_shared<DocumentWindowObject>(process(), all[place]);
    };
    const auto nameAt = [&](std::size_t place) { return objectAt(place)->caption(); };
    return objectAt(placeIn(all.size(), index, u"DocumentWindows.Item", nameAt));
}

void DocumentWindowsObject::arrange(std::optional<std::int32_t> arrangeStyle) const {
    constexpr std::int32_t ppArrangeTiled = 1;
    constexpr std::int32_t ppArrangeCascade = 2;
    constexpr float step = 18;
    const std::int32_t style = arrangeStyle.value_or(ppArrangeTiled);
    errors::demandWithin(style, ppArrangeTiled, ppArrangeCascade, u"DocumentWindows.Arrange");
    const std::vector<DocumentWindowPtr> all = windows();
    const Frame room{0, 0, process()->settings().mainWindow.width, process()->settings().mainWindow.height};
    for (std::size_t place = 0; place < all.size(); ++place) {
        const auto before = static_cast<float>(place);
        const float share = room.width / static_cast<float>(all.size());
        all[place]->state = ppWindowNormal;
        all[place]->frame = style == ppArrangeTiled
                                ? Frame{before * share, 0, share, room.height}
                                : Frame{before * step, before * step, room.width * 2 / 3, room.height * 2 / 3};
    }
}

std::vector<DocumentWindowPtr> DocumentWindowsObject::windows() const {
    std::vector<DocumentWindowPtr> all = process()->windows();
    if (presentation_) {
        const PresentationPtr shown = simulator::alive(*presentation_);
        std::erase_if(all, [&](const DocumentWindowPtr& window) { return window->presentation.lock() != shown; });
    }
    return all;
}

} // namespace simulator
