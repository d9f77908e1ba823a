#include "simulator/objects/LineFormatObject.h"

namespace simulator {

const automation::MemberTable& LineFormatObject::members() const {
    using automation::property;
    using This = LineFormatObject;
    static const automation::MemberTable table = officeMembers().with({
        property<&This::get<&Line::dashStyle>, &This::setDashStyle>(u"DashStyle"),
        property<&This::color<&Line::color>>(u"ForeColor"),
        property<&This::color<&Line::back>>(u"BackColor"),
        property<&This::get<&Line::visible>, &This::turn<&Line::visible>>(u"Visible"),
        property<&This::get<&Line::weight>, &This::setWeight>(u"Weight"),
    });
    return table;
}

void LineFormatObject::setWeight(float points) {
    errors::demandWithin(points, 0.0F, 1584.0F, u"LineFormat.Weight");
    set<&Line::weight>(points);
}

void LineFormatObject::setDashStyle(std::int32_t style) {
    errors::demandWithin(style, 1, 8, u"LineFormat.DashStyle");
    set<&Line::dashStyle>(style);
}

} // namespace simulator
