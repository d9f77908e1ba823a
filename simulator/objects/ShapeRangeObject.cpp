#include "simulator/objects/ShapeRangeObject.h"

#include "simulator/document/Arrangement.h"
#include "simulator/document/Grouping.h"
#include "simulator/objects/ShapeObject.h"

#include <algorithm>
#include <iterator>

namespace simulator {

const automation::MemberTable& ShapeRangeObject::members() const {
    using automation::method;
    using automation::property;
    using This = ShapeRangeObject;
    static const automation::MemberTable table = sharedMembers().with({
        method<&This::item>(u"Item", u"Index").asDefault(),
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        method<&This::group>(u"Group"),
        method<&This::regroup>(u"Regroup"),
        method<&This::align>(u"Align", u"AlignCmd RelativeTo"),
        method<&This::distribute>(u"Distribute", u"DistributeCmd RelativeTo"),
    });
    return table;
}

std::shared_ptr<ShapeObject> ShapeRangeObject::item(const automation::Value& index) const {
    const auto nameAt = [this](std::size_t place) { return nodes().at(place)->name; };
    return std::make_shared<ShapeObject>(process(),
                                         nodes().at(placeIn(nodes().size(), index, u"ShapeRange.Item", nameAt)));
}

std::shared_ptr<ShapeObject> ShapeRangeObject::group() {
    return makeGroup(slideOfOutermost(u"ShapeRange.Group"), nodes().all(), u"ShapeRange.Group");
}

std::shared_ptr<ShapeObject> ShapeRangeObject::regroup() {
    const SlidePtr slide = slideOfOutermost(u"ShapeRange.Regroup");
    const std::int32_t former = nodes().first()->formerGroup;
    std::vector<ShapePtr> shapes;
    if (former != 0) {
        std::copy_if(slide->shapes().begin(), slide->shapes().end(), std::back_inserter(shapes),
                     [former](const ShapePtr& shape) { return shape->formerGroup == former; });
    }
    return makeGroup(slide, shapes, u"ShapeRange.Regroup");
}

std::shared_ptr<ShapeObject> ShapeRangeObject::makeGroup(const SlidePtr& slide, const std::vector<ShapePtr>& shapes,
                                                         std::u16string_view member) const {
    if (shapes.size() < 2) {
        errors::invalidRequest(member, u"Un groupe se compose d'au moins deux formes.");
    }
    if (std::any_of(shapes.begin(), shapes.end(),
                    [](const ShapePtr& shape) { return shape->placeholder.has_value() || shape->type == msoTable; })) {
        errors::invalidRequest(member, u"Un espace réservé ou un tableau ne peut pas être groupé.");
    }
    const ShapePtr made = simulator::group(*slide, shapes);
    markChanged(*slide);
    return std::make_shared<ShapeObject>(process(), made);
}

void ShapeRangeObject::align(MsoAlignCmd command, MsoTriState relativeToSlide) {
    errors::demandWithin(command, msoAlignLefts, msoAlignBottoms, u"ShapeRange.Align");
    const std::vector<ShapePtr> shapes = nodes().all();
    simulator::align(shapes, command, areaOf(shapes, relativeToSlide));
    markChanged(*nodes().first());
}

void ShapeRangeObject::distribute(MsoDistributeCmd command, MsoTriState relativeToSlide) {
    errors::demandWithin(command, msoDistributeHorizontally, msoDistributeVertically, u"ShapeRange.Distribute");
    const std::vector<ShapePtr> shapes = nodes().all();
    if (relativeToSlide == msoFalse && shapes.size() < 3) {
        errors::invalidRequest(u"ShapeRange.Distribute", u"Il faut au moins trois formes.");
    }
    simulator::distribute(shapes, command, areaOf(shapes, relativeToSlide));
    markChanged(*nodes().first());
}

Frame ShapeRangeObject::areaOf(const std::vector<ShapePtr>& shapes, MsoTriState relativeToSlide) const {
    if (relativeToSlide == msoFalse) {
        return boundsOf(shapes);
    }
    const SlidePtr slide = simulator::alive(nodes().first()->slide);
    const PresentationPtr presentation = simulator::alive(slide->presentation);
    return {0, 0, presentation->slideWidth, presentation->slideHeight};
}

} // namespace simulator
