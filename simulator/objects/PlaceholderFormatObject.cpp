#include "simulator/objects/PlaceholderFormatObject.h"

namespace simulator {

const automation::MemberTable& PlaceholderFormatObject::members() const {
    static const automation::MemberTable table{
        automation::property<&PlaceholderFormatObject::type>(u"Type"),
    };
    return table;
}

} // namespace simulator
