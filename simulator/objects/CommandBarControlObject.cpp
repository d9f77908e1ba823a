#include "simulator/objects/CommandBarControlObject.h"

#include "simulator/objects/CommandBarObject.h"

namespace simulator {

const automation::MemberTable& CommandBarControlObject::members() const {
    using automation::method;
    using automation::property;
    using This = CommandBarControlObject;
    static const automation::MemberTable table = officeMembers().with({
        property<&This::accState>(u"accState"),
        property<&This::builtIn>(u"BuiltIn"),
        property<&This::caption>(u"Caption").asDefault(),
        property<&This::enabled>(u"Enabled"),
        property<&This::index>(u"Index"),
        method<&This::execute>(u"Execute"),
    });
    return table;
}

bool CommandBarControlObject::enabled() const {
    return bar().enabled && (control().command != CommandBarControl::Command::CloseCurve || openCurve());
}

std::int32_t CommandBarControlObject::accState(std::optional<std::int32_t> child) const {
    if (child.value_or(0) != 0) {
        errors::invalidRequest(u"CommandBarControl.accState", u"Ce contrôle n'a pas d'élément enfant.");
    }
    const std::int32_t availability = enabled() ? stateFocusable : stateUnavailable;
    return bar().visible ? availability : availability | stateInvisible;
}

void CommandBarControlObject::execute() const {
    const ShapePtr curve = control().command == CommandBarControl::Command::CloseCurve ? openCurve() : nullptr;
    if (!curve || !enabled()) {
        errors::invalidRequest(u"CommandBarControl.Execute", u"Cette commande n'est pas disponible.");
    }
    curve->closed = true;
    markChanged(*curve);
}

automation::ObjectPtr CommandBarControlObject::owner() const {
    return std::make_shared<CommandBarObject>(process(), bar_);
}

ShapePtr CommandBarControlObject::openCurve() const {
    const DocumentWindowPtr window = process()->activeWindow();
    const std::vector<ShapePtr> selected = window ? window->selection.shapes() : std::vector<ShapePtr>();
    const bool isOpenCurve = selected.size() == 1 && selected.front()->type == msoFreeform && !selected.front()->closed;
    return isOpenCurve ? selected.front() : nullptr;
}

} // namespace simulator
