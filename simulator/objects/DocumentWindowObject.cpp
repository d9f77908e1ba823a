#include "simulator/objects/DocumentWindowObject.h"

#include "simulator/objects/CollectionLookup.h"
#include "simulator/objects/PanesObject.h"
#include "simulator/objects/PresentationObject.h"
#include "simulator/objects/SelectionObject.h"
#include "simulator/objects/TriState.h"
#include "simulator/objects/ViewObject.h"

namespace simulator {

const automation::MemberTable& DocumentWindowObject::members() const {
    using automation::method;
    using automation::property;
    using This = DocumentWindowObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::selection>(u"Selection"),
        property<&This::view>(u"View"),
        property<&This::presentation>(u"Presentation"),
        property<&This::viewType, &This::setViewType>(u"ViewType"),
        property<&This::windowState, &This::setWindowState>(u"WindowState"),
        property<&This::length<&Frame::left>, &This::setLength<&Frame::left>>(u"Left"),
        property<&This::length<&Frame::top>, &This::setLength<&Frame::top>>(u"Top"),
        property<&This::length<&Frame::width>, &This::setLength<&Frame::width>>(u"Width"),
        property<&This::length<&Frame::height>, &This::setLength<&Frame::height>>(u"Height"),
        property<&This::active>(u"Active"),
        property<&This::caption>(u"Caption").asDefault(),
        property<&This::activePane>(u"ActivePane"),
        property<&This::panes>(u"Panes"),
        method<&This::newWindow>(u"NewWindow"),
        method<&This::activate>(u"Activate"),
        method<&This::close>(u"Close"),
    });
    return table;
}

bool DocumentWindowObject::isSame(const Object& other) const noexcept {
    const auto* const window = dynamic_cast<const DocumentWindowObject*>(&other);
    return window != nullptr && isSameReference(window->window_, window_);
}

std::u16string DocumentWindowObject::caption() const {
    return simulator::alive(window()->presentation)->name;
}

MsoTriState DocumentWindowObject::active() const {
    return triState(window() == process()->activeWindow());
}

void DocumentWindowObject::setViewType(std::int32_t type) const {
    constexpr std::int32_t firstView = 1;
    constexpr std::int32_t lastView = 12;
    if (type < firstView || type > lastView) {
        errors::invalidRequest(u"DocumentWindow.ViewType", u"La valeur n'est pas un mode d'affichage.");
    }
    const DocumentWindowPtr shown = window();
    if (shown->viewType == type) {
        return;
    }
    shown->viewType = type;
    shown->selection.selectNothing();
    if (const SlidePtr slide = shown->shown(); slide && type == DocumentWindow::slideSorterView) {
        shown->selection.selectSlides({slide});
    }
}

void DocumentWindowObject::setWindowState(PpWindowState state) const {
    errors::demandWithin(state, ppWindowNormal, ppWindowMaximized, u"DocumentWindow.WindowState");
    window()->state = state;
}

std::shared_ptr<DocumentWindowObject> DocumentWindowObject::newWindow() const {
    return std::make_shared<DocumentWindowObject>(process(),
                                                  process()->openWindow(simulator::alive(window()->presentation)));
}

automation::ObjectPtr DocumentWindowObject::owner() const {
    return presentation();
}

std::shared_ptr<PresentationObject> DocumentWindowObject::presentation() const {
    return std::make_shared<PresentationObject>(process(), window()->presentation);
}

std::shared_ptr<ViewObject> DocumentWindowObject::view() const {
    return std::make_shared<ViewObject>(process(), window());
}

std::shared_ptr<SelectionObject> DocumentWindowObject::selection() const {
    return std::make_shared<SelectionObject>(process(), window());
}

std::shared_ptr<PanesObject> DocumentWindowObject::panes() const {
    return std::make_shared<PanesObject>(process(), window());
}

std::shared_ptr<PaneObject> DocumentWindowObject::activePane() const {
    return panes()->active();
}

} // namespace simulator
