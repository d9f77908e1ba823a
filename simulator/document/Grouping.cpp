#include "simulator/document/Grouping.h"

#include "simulator/document/Stacking.h"

#include <cassert>

namespace simulator {

ShapePtr group(Slide& slide, const std::vector<ShapePtr>& shapes) {
    std::vector<ShapePtr> items = inStackingOrder(slide, shapes);
    assert(!items.empty() && items.size() == shapes.size());
    const std::size_t place = slide.placeOf(*items.back()) + 1 - items.size();
    auto group = std::make_shared<Shape>();
    group->type = msoGroup;
    slide.add(group);
    for (const ShapePtr& item : items) {
        slide.remove(item);
    }
    Shape::adopt(group, std::move(items));
    slide.move(group, place);
    return group;
}

std::vector<ShapePtr> ungroup(Slide& slide, const ShapePtr& group) {
    assert(group->type == msoGroup && !group->group());
    std::size_t place = slide.placeOf(*group);
    std::vector<ShapePtr> items = group->release();
    slide.remove(group);
    for (const ShapePtr& item : items) {
        slide.insert(item, place++);
    }
    return items;
}

void erase(const ShapePtr& shape) {
    const SlidePtr slide = shape->slide.lock();
    if (!slide) {
        return;
    }
    const ShapePtr outer = shape->group();
    if (!outer) {
        slide->remove(shape);
        return;
    }
    outer->release(shape);
    if (outer->items().size() > 1) {
        return;
    }
    if (const ShapePtr around = outer->group()) {
        const ShapePtr left = outer->release().front();
        around->replace(outer, left);
    } else {
        ungroup(*slide, outer);
    }
}

} // namespace simulator
