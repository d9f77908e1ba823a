#include "simulator/objects/FreeformBuilderObject.h"

#include "simulator/document/NewShape.h"
#include "simulator/objects/SegmentArguments.h"
#include "simulator/objects/ShapeObject.h"
#include "simulator/objects/ShapesObject.h"

namespace simulator {

const automation::MemberTable& FreeformBuilderObject::members() const {
    using automation::method;
    using This = FreeformBuilderObject;
    static const automation::MemberTable table = officeMembers().with({
        method<&This::addNodes>(u"AddNodes", u"SegmentType EditingType X1 Y1 X2 Y2 X3 Y3"),
        method<&This::convertToShape>(u"ConvertToShape"),
    });
    return table;
}

void FreeformBuilderObject::addNodes(MsoSegmentType segmentType, MsoEditingType editingType, float x1, float y1,
                                     std::optional<float> x2, std::optional<float> y2, std::optional<float> x3,
                                     std::optional<float> y3) {
    const SegmentArguments segment{segmentType, editingType, x1, y1, x2, y2, x3, y3};
    segment.drawOn(path_, u"FreeformBuilder.AddNodes");
}

std::shared_ptr<ShapeObject> FreeformBuilderObject::convertToShape() {
    if (path_.segments() == 0) {
        errors::invalidRequest(u"FreeformBuilder.ConvertToShape", u"La forme libre n'a pas de segment.");
    }
    const ShapePtr shape = newShape::freeform(path_.nodes());
    const SlidePtr slide = simulator::alive(slide_);
    slide->add(shape);
    markChanged(*slide);
    return std::make_shared<ShapeObject>(process(), shape);
}

automation::ObjectPtr FreeformBuilderObject::owner() const {
    return std::make_shared<ShapesObject>(process(), slide_);
}

} // namespace simulator
