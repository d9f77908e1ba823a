#include "simulator/objects/SlideShowWindowObject.h"

#include "simulator/objects/CollectionLookup.h"
#include "simulator/objects/PresentationObject.h"
#include "simulator/objects/SlideShowViewObject.h"
#include "simulator/objects/TriState.h"

#include <typeinfo>

namespace simulator {

bool OfSlideShow::isSame(const Object& other) const noexcept {
    const auto* const peer = dynamic_cast<const OfSlideShow*>(&other);
    return peer != nullptr && typeid(*this) == typeid(other) && isSameReference(window_, peer->window_);
}

SlideShowWindowPtr OfSlideShow::window() const {
    SlideShowWindowPtr window = simulator::alive(window_);
    if (window->isOver()) {
        errors::gone();
    }
    return window;
}

const automation::MemberTable& SlideShowWindowObject::members() const {
    using automation::method;
    using automation::property;
    using This = SlideShowWindowObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::presentation>(u"Presentation"),
        property<&This::view>(u"View"),
        property<&This::isFullScreen>(u"IsFullScreen"),
        property<&This::active>(u"Active"),
        method<&This::activate>(u"Activate"),
        property<&This::length<&Frame::left>, &This::setLength<&Frame::left>>(u"Left"),
        property<&This::length<&Frame::top>, &This::setLength<&Frame::top>>(u"Top"),
        property<&This::length<&Frame::width>, &This::setLength<&Frame::width>>(u"Width"),
        property<&This::length<&Frame::height>, &This::setLength<&Frame::height>>(u"Height"),
    });
    return table;
}

automation::ObjectPtr SlideShowWindowObject::owner() const {
    return presentation();
}

std::shared_ptr<PresentationObject> SlideShowWindowObject::presentation() const {
    return std::make_shared<PresentationObject>(process(), window()->presentation);
}

std::shared_ptr<SlideShowViewObject> SlideShowWindowObject::view() const {
    return std::make_shared<SlideShowViewObject>(process(), window());
}

MsoTriState SlideShowWindowObject::isFullScreen() const {
    constexpr std::int32_t ppShowTypeWindow = 2;
    return triState(simulator::alive(window()->presentation)->slideShow.showType != ppShowTypeWindow);
}

MsoTriState SlideShowWindowObject::active() const {
    const SlideShowWindowPtr own = window(); // raises for a show that is over, when there may be none
    return triState(process()->slideShows().front() == own);
}

void SlideShowWindowObject::activate() const {
    process()->activate(window());
}

} // namespace simulator
