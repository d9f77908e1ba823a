#include "simulator/objects/GroupShapesObject.h"

#include "simulator/objects/ShapeObject.h"

namespace simulator {

const automation::MemberTable& GroupShapesObject::members() const {
    using automation::method;
    using automation::property;
    using This = GroupShapesObject;
    static const automation::MemberTable table = officeMembers().with({
        method<&This::item>(u"Item", u"Index").asDefault(),
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
    });
    return table;
}

std::vector<ShapePtr> GroupShapesObject::items() const {
    const ShapePtr group = node();
    return process()->settings().isAsDocumented ? leavesOf(ShapeSet(group)).all() : group->items();
}

std::shared_ptr<ShapeObject> GroupShapesObject::item(const automation::Value& index) const {
    return std::make_shared<ShapeObject>(process(), elementAt(items(), index, u"GroupShapes.Item"));
}

automation::ObjectPtr GroupShapesObject::owner() const {
    return std::make_shared<ShapeObject>(process(), node());
}

} // namespace simulator
