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
        property<&This::get<&Line::pattern>, &This::setPattern>(u"Pattern"),
        property<&This::get<&Line::style>, &This::setStyle>(u"Style"),
        property<&This::get<&Line::transparency>, &This::setTransparency>(u"Transparency"),
        property<&This::arrow<&Line::begin, &ArrowHead::style>, &This::setArrow<&Line::begin, &ArrowHead::style>>(
            u"BeginArrowheadStyle"),
        property<&This::arrow<&Line::begin, &ArrowHead::length>, &This::setArrow<&Line::begin, &ArrowHead::length>>(
            u"BeginArrowheadLength"),
        property<&This::arrow<&Line::begin, &ArrowHead::width>, &This::setArrow<&Line::begin, &ArrowHead::width>>(
            u"BeginArrowheadWidth"),
        property<&This::arrow<&Line::end, &ArrowHead::style>, &This::setArrow<&Line::end, &ArrowHead::style>>(
            u"EndArrowheadStyle"),
        property<&This::arrow<&Line::end, &ArrowHead::length>, &This::setArrow<&Line::end, &ArrowHead::length>>(
            u"EndArrowheadLength"),
        property<&This::arrow<&Line::end, &ArrowHead::width>, &This::setArrow<&Line::end, &ArrowHead::width>>(
            u"EndArrowheadWidth"),
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

void LineFormatObject::setPattern(std::int32_t pattern) {
    errors::demandWithin(pattern, 1, 48, u"LineFormat.Pattern");
    set<&Line::pattern>(pattern);
}

void LineFormatObject::setStyle(std::int32_t style) {
    errors::demandWithin(style, 1, 5, u"LineFormat.Style");
    set<&Line::style>(style);
}

void LineFormatObject::setTransparency(float transparency) {
    errors::demandWithin(transparency, 0.0F, 1.0F, u"LineFormat.Transparency");
    set<&Line::transparency>(transparency);
}

} // namespace simulator
