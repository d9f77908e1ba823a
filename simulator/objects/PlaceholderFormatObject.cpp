#include "simulator/objects/PlaceholderFormatObject.h"

#include "simulator/objects/ShapeObject.h"

namespace simulator {

const automation::MemberTable& PlaceholderFormatObject::members() const {
    static const automation::MemberTable table = commonMembers().with({
        automation::property<&PlaceholderFormatObject::type>(u"Type"),
    });
    return table;
}

automation::ObjectPtr PlaceholderFormatObject::owner() const {
    return std::make_shared<ShapeObject>(process(), node());
}

} // namespace simulator
