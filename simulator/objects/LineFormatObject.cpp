#include "simulator/objects/LineFormatObject.h"

#include "simulator/objects/ShapeColor.h"

namespace simulator {

const automation::MemberTable& LineFormatObject::members() const {
    using automation::property;
    using This = LineFormatObject;
    static const automation::MemberTable table{
        property<&This::dashStyle, &This::setDashStyle>(u"DashStyle"),
        property<&This::foreColor>(u"ForeColor"),
        property<&This::visible, &This::setVisible>(u"Visible"),
        property<&This::weight, &This::setWeight>(u"Weight"),
    };
    return table;
}

MsoTriState LineFormatObject::visible() const {
    return nodes().common(msoTriStateMixed, [](const Shape& shape) { return triState(shape.line.visible); });
}

void LineFormatObject::setVisible(MsoTriState visible) {
    nodes().change([visible](Shape& shape) { shape.line.visible = visible != msoFalse; });
}

float LineFormatObject::weight() const {
    return nodes().common(mixedLength, [](const Shape& shape) { return shape.line.weight; });
}

void LineFormatObject::setWeight(float points) {
    errors::demandWithin(points, 0.0F, 1584.0F, u"LineFormat.Weight");
    nodes().change([points](Shape& shape) { shape.line.weight = points; });
}

std::shared_ptr<ColorFormatObject> LineFormatObject::foreColor() const {
    return colorOf(session(), nodes(), [](Shape& shape) -> Color& { return shape.line.color; });
}

std::int32_t LineFormatObject::dashStyle() const {
    return nodes().common(std::int32_t{-2}, [](const Shape& shape) { return shape.line.dashStyle; });
}

void LineFormatObject::setDashStyle(std::int32_t style) {
    errors::demandWithin(style, 1, 8, u"LineFormat.DashStyle");
    nodes().change([style](Shape& shape) { shape.line.dashStyle = style; });
}

} // namespace simulator
