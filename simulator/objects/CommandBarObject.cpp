#include "simulator/objects/CommandBarObject.h"

#include "simulator/objects/CommandBarControlsObject.h"
#include "simulator/objects/CommandBarsObject.h"

namespace simulator {

const automation::MemberTable& CommandBarObject::members() const {
    using automation::property;
    using This = CommandBarObject;
    static const automation::MemberTable table = officeMembers().with({
        property<&This::builtIn>(u"BuiltIn"),
        property<&This::controls>(u"Controls"),
        property<&This::enabled, &This::setEnabled>(u"Enabled"),
        property<&This::index>(u"Index"),
        property<&This::name>(u"Name").asDefault(),
        property<&This::position, &This::setPosition>(u"Position"),
        property<&This::type>(u"Type"),
        property<&This::visible, &This::setVisible>(u"Visible"),
    });
    return table;
}

void CommandBarObject::setEnabled(bool enabled) const {
    bar().enabled = enabled;
    bar().visible = bar().visible && enabled;
}

void CommandBarObject::setVisible(bool visible) const {
    if (bar().type == msoBarTypePopup || (visible && !bar().enabled)) {
        errors::invalidRequest(u"CommandBar.Visible", u"Cette barre ne peut pas être affichée.");
    }
    bar().visible = visible;
}

void CommandBarObject::setPosition(MsoBarPosition position) const {
    if (bar().type == msoBarTypePopup || position < msoBarLeft || position > msoBarFloating) {
        errors::invalidRequest(u"CommandBar.Position", u"Cette barre ne peut pas prendre cette position.");
    }
    bar().position = position;
}

std::shared_ptr<CommandBarControlsObject> CommandBarObject::controls() const {
    return std::make_shared<CommandBarControlsObject>(process(), place_);
}

automation::ObjectPtr CommandBarObject::owner() const {
    return std::make_shared<CommandBarsObject>(process());
}

} // namespace simulator
