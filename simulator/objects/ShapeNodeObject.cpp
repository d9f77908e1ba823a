#include "simulator/objects/ShapeNodeObject.h"

#include "simulator/objects/ShapeNodesObject.h"

namespace simulator {

const automation::MemberTable& ShapeNodeObject::members() const {
    using automation::property;
    using This = ShapeNodeObject;
    static const automation::MemberTable table = officeMembers().with({
        property<&This::points>(u"Points"),
        property<&This::segmentType>(u"SegmentType"),
    });
    return table;
}

automation::Array ShapeNodeObject::points() const {
    const Node at = shape()->nodes[place_];
    return automation::Array(1, automation::Array{at.x, at.y}); // braces alone mean this or the inner one, by compiler
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

automation::ObjectPtr ShapeNodeObject::owner() const {
    return std::make_shared<ShapeNodesObject>(process(), shape_);
}

} // namespace simulator
