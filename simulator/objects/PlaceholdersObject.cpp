#include "simulator/objects/PlaceholdersObject.h"

#include "simulator/objects/ShapeObject.h"
#include "simulator/objects/ShapesObject.h"

#include <algorithm>
#include <iterator>

namespace simulator {

namespace {

std::vector<ShapePtr> placeholdersOf(const Slide& slide) {
    std::vector<ShapePtr> placeholders;
    std::copy_if(slide.shapes().begin(), slide.shapes().end(), std::back_inserter(placeholders),
                 [](const ShapePtr& shape) { return shape->placeholder.has_value(); });
    return placeholders;
}

} // namespace

const automation::MemberTable& PlaceholdersObject::members() const {
    using automation::method;
    using automation::property;
    using This = PlaceholdersObject;
    static const automation::MemberTable table = commonMembers().with({
        method<&This::item>(u"Item", u"Index").asDefault(),
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
    });
    return table;
}

std::int32_t PlaceholdersObject::count() const {
    return static_cast<std::int32_t>(placeholdersOf(*node()).size());
}

std::shared_ptr<ShapeObject> PlaceholdersObject::item(std::int32_t index) const {
    const std::vector<ShapePtr> placeholders = placeholdersOf(*node());
    return std::make_shared<ShapeObject>(process(),
                                         placeholders[placeIn(placeholders.size(), index, u"Placeholders.Item")]);
}

automation::ObjectPtr PlaceholdersObject::owner() const {
    return std::make_shared<ShapesObject>(process(), node());
}

} // namespace simulator
