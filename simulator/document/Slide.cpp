#include "simulator/document/Slide.h"

#include "automation/Text.h"
#include "simulator/document/NewShape.h"
#include "simulator/document/Order.h"

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

void Slide::add(const ShapePtr& shape) {
    forEachInside(*shape, [this](Shape& part) {
        number(part);
        if (part.connector) {
            part.connector = Connector{part.connector->type, {}, {}}; // a copy holds on to nothing
        }
    });
    if (isNameTaken(shape->name)) {
        shape->name = newShape::usualName(*shape);
    }
    shape->settle(weak_from_this());
    shapes_.push_back(shape);
}

void Slide::number(Shape& shape) {
    shape.id = ++lastShapeId_;
    if (shape.name.empty()) {
        shape.name = newShape::usualName(shape);
    }
}

void Slide::insert(const ShapePtr& shape, std::size_t place) {
    forEachInside(*shape, [this](Shape& part) { lastShapeId_ = std::max(lastShapeId_, part.id); });
    shape->settle(weak_from_this());
    order::insert(shapes_, shape, place);
}

void Slide::remove(const ShapePtr& shape) {
    if (const ShapePtr removed = order::take(shapes_, shape)) {
        removed->settle({});
    }
}

std::size_t Slide::placeOf(const Shape& shape) const noexcept {
    return order::placeOf(shapes_, shape);
}

void Slide::move(const ShapePtr& shape, std::size_t place) {
    order::move(shapes_, shape, place);
}

bool Slide::isNameTaken(std::u16string_view wanted) const noexcept {
    return std::any_of(shapes_.begin(), shapes_.end(),
                       [wanted](const ShapePtr& shape) { return bearsName(*shape, wanted); });
}

void Slide::settle(const std::weak_ptr<Presentation>& ground) noexcept {
    presentation = ground;
    if (notesPage) {
        notesPage->presentation = ground;
    }
}

void Slide::adoptNotesPage(const SlidePtr& page) {
    notesPage = page;
    page->owner = weak_from_this();
    page->presentation = presentation;
}

void Slide::adoptBackground(const ShapePtr& shape) {
    background = shape;
    shape->settle(weak_from_this());
}

SlidePtr Slide::clone() const {
    auto copy = std::make_shared<Slide>();
    copy->kind = kind;
    copy->layout = layout;
    copy->tags = tags;
    copy->followsMasterBackground = followsMasterBackground;
    copy->displaysMasterShapes = displaysMasterShapes;
    copy->master = master;
    copy->headersFooters = headersFooters;
    copy->transition = transition;
    copy->isTouched = isTouched;
    copy->origin = origin;
    if (background) {
        copy->adoptBackground(background->clone());
    }
    if (notesPage) {
        copy->adoptNotesPage(notesPage->clone());
    }
    for (const ShapePtr& shape : shapes_) {
        copy->insert(shape->clone(), copy->shapes_.size());
    }
    copy->lastShapeId_ = lastShapeId_;
    return copy;
}

} // namespace simulator
