#include "simulator/document/Slide.h"

#include "automation/Text.h"

#include <algorithm>

namespace simulator {

namespace {

/// Visits a shape and, where it is a group, everything in it.
template <typename Visit> void forEachInside(Shape& shape, const Visit& visit) {
    visit(shape);
    for (const ShapePtr& item : shape.items()) {
        forEachInside(*item, visit);
    }
}

bool bearsName(const Shape& shape, std::u16string_view name) noexcept {
    return automation::equalIgnoringCase(shape.name, name) ||
           std::any_of(shape.items().begin(), shape.items().end(),
                       [name](const ShapePtr& item) { return bearsName(*item, name); });
}

} // namespace

void Slide::add(const ShapePtr& shape, std::u16string_view baseName) {
    forEachInside(*shape, [this](Shape& part) { part.id = ++lastShapeId_; });
    if (shape->name.empty() || isNameTaken(shape->name)) {
        shape->name = std::u16string(baseName) + u" " + automation::decimal(shape->id);
    }
    shape->settle(weak_from_this());
    shapes_.push_back(shape);
}

void Slide::insert(const ShapePtr& shape, std::size_t place) {
    forEachInside(*shape, [this](Shape& part) { lastShapeId_ = std::max(lastShapeId_, part.id); });
    shape->settle(weak_from_this());
    shapes_.insert(shapes_.begin() + static_cast<std::ptrdiff_t>(std::min(place, shapes_.size())), shape);
}

void Slide::remove(const ShapePtr& shape) {
    const ShapePtr removed = shape;
    if (std::erase(shapes_, removed) != 0) {
        removed->settle({});
    }
}

std::size_t Slide::placeOf(const Shape& shape) const noexcept {
    const auto found = std::find_if(shapes_.begin(), shapes_.end(),
                                    [&shape](const ShapePtr& candidate) { return candidate.get() == &shape; });
    return static_cast<std::size_t>(found - shapes_.begin());
}

void Slide::move(const ShapePtr& shape, std::size_t place) {
    const ShapePtr kept = shape;
    if (std::erase(shapes_, kept) != 0) {
        shapes_.insert(shapes_.begin() + static_cast<std::ptrdiff_t>(std::min(place, shapes_.size())), kept);
    }
}

bool Slide::isNameTaken(std::u16string_view wanted) const noexcept {
    return std::any_of(shapes_.begin(), shapes_.end(),
                       [wanted](const ShapePtr& shape) { return bearsName(*shape, wanted); });
}

SlidePtr Slide::clone() const {
    auto copy = std::make_shared<Slide>();
    copy->layout = layout;
    copy->tags = tags;
    for (const ShapePtr& shape : shapes_) {
        copy->insert(shape->clone(), copy->shapes_.size());
    }
    copy->lastShapeId_ = lastShapeId_;
    return copy;
}

} // namespace simulator
