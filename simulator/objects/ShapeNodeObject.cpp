#include "simulator/objects/ShapeNodeObject.h"

namespace simulator {

const automation::MemberTable& ShapeNodeObject::members() const {
    using automation::property;
    using This = ShapeNodeObject;
    static const automation::MemberTable table{
        property<&This::points>(u"Points"),
        property<&This::segmentType>(u"SegmentType"),
    };
    return table;
}

automation::Array ShapeNodeObject::points() const {
    const Node at = shape()->nodes[place_];
    return {automation::Array{at.x, at.y}};
}

MsoSegmentType ShapeNodeObject::segmentType() const {
    const ShapePtr freeform = shape();
    const bool leadsToControl = place_ + 1 < freeform->nodes.size() && freeform->nodes[place_ + 1].curve;
    return freeform->nodes[place_].curve || leadsToControl ? msoSegmentCurve : msoSegmentLine;
}

ShapePtr ShapeNodeObject::shape() const {
    ShapePtr freeform = simulator::alive(shape_);
    if (place_ >= freeform->nodes.size()) {
        errors::gone();
    }
    return freeform;
}

} // namespace simulator
