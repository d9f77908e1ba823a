#include "simulator/objects/PanesObject.h"

#include "simulator/objects/DocumentWindowObject.h"

namespace simulator {

const automation::MemberTable& PanesObject::members() const {
    using automation::method;
    using automation::property;
    using This = PanesObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        method<&This::item>(u"Item", u"Index").asDefault(),
    });
    return table;
}

std::int32_t PanesObject::count() const {
    return simulator::alive(window_)->viewType == DocumentWindow::normalView ? DocumentWindow::notesPane : 1;
}

std::shared_ptr<PaneObject> PanesObject::item(std::int32_t index) const {
    if (index < 1 || index > count()) {
        errors::outOfRange(u"Panes.Item", index, static_cast<std::size_t>(count()));
    }
    return std::make_shared<PaneObject>(process(), window_, index);
}

std::shared_ptr<PaneObject> PanesObject::active() const {
    return item(count() == 1 ? 1 : simulator::alive(window_)->activePane);
}

automation::ObjectPtr PanesObject::owner() const {
    return std::make_shared<DocumentWindowObject>(process(), window_);
}

} // namespace simulator
