#include "simulator/objects/PaneObject.h"

#include "simulator/objects/DocumentWindowObject.h"
#include "simulator/objects/TriState.h"

#include <utility>

namespace simulator {

const automation::MemberTable& PaneObject::members() const {
    using automation::method;
    using automation::property;
    using This = PaneObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::active>(u"Active"),
        property<&This::viewType>(u"ViewType"),
        method<&This::activate>(u"Activate"),
    });
    return table;
}

MsoTriState PaneObject::active() const {
    const DocumentWindowPtr window = simulator::alive(window_);
    return triState(window->viewType != DocumentWindow::normalView || window->activePane == index_);
}

std::int32_t PaneObject::viewType() const {
    const std::int32_t view = simulator::alive(window_)->viewType;
    if (view != DocumentWindow::normalView) {
        return view;
    }
    switch (index_) {
    case DocumentWindow::outlinePane: return DocumentWindow::thumbnailsView;
    case DocumentWindow::slidePane: return DocumentWindow::slideView;
    default: return DocumentWindow::notesPageView;
    }
}

void PaneObject::activate() const {
    const DocumentWindowPtr window = simulator::alive(window_);
    if (window->viewType != DocumentWindow::normalView) {
        return;
    }
    const std::int32_t left = std::exchange(window->activePane, index_);
    if (left == index_) {
        return;
    }
    if (const SlidePtr slide = window->shown(); slide && index_ == DocumentWindow::outlinePane) {
        window->selection.selectSlides({slide});
    } else if (left == DocumentWindow::outlinePane) {
        window->selection.selectNothing();
    }
}

automation::ObjectPtr PaneObject::owner() const {
    return std::make_shared<DocumentWindowObject>(process(), window_);
}

} // namespace simulator
