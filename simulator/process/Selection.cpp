#include "simulator/process/Selection.h"

#include <algorithm>

namespace simulator {

namespace {

/// True while a shape stands on a slide, by itself or within a group.
bool isOnSlide(const ShapePtr& shape) {
    ShapePtr outermost = shape;
    while (const ShapePtr group = outermost->group()) {
        outermost = group;
    }
    const SlidePtr slide = outermost->slide.lock();
    return slide && slide->placeOf(*outermost) < slide->shapes().size();
}

bool isInPresentation(const SlidePtr& slide) {
    const PresentationPtr presentation = slide->presentation.lock();
    return presentation && presentation->placeOf(*slide) < presentation->slides().size();
}

template <typename T, typename Condition>
std::vector<std::shared_ptr<T>> present(const std::vector<std::weak_ptr<T>>& references, const Condition& condition) {
    std::vector<std::shared_ptr<T>> objects;
    for (const auto& reference : references) {
        if (auto object = reference.lock(); object && condition(object)) {
            objects.push_back(std::move(object));
        }
    }
    return objects;
}

template <typename T> void add(std::vector<std::weak_ptr<T>>& references, const std::shared_ptr<T>& object) {
    const auto isObject = [&](const std::weak_ptr<T>& reference) { return reference.lock() == object; };
    if (std::none_of(references.begin(), references.end(), isObject)) {
        references.push_back(object);
    }
}

} // namespace

void Selection::selectSlides(const std::vector<SlidePtr>& slides) {
    selectNothing();
    type_ = ppSelectionSlides;
    for (const SlidePtr& slide : slides) {
        add(slides_, slide);
    }
}

void Selection::selectShapes(const std::vector<ShapePtr>& shapes, bool replace) {
    const std::vector<ShapePtr> kept = replace ? std::vector<ShapePtr>() : this->shapes();
    selectNothing();
    type_ = ppSelectionShapes;
    for (const ShapePtr& shape : kept) {
        if (shapes.empty() || shape->slide.lock() == shapes.front()->slide.lock()) {
            add(shapes_, shape);
        }
    }
    for (const ShapePtr& shape : shapes) {
        add(shapes_, shape);
    }
}

void Selection::selectText(const ShapePtr& shape, Span span) {
    selectNothing();
    type_ = ppSelectionText;
    shapes_.emplace_back(shape);
    text_ = span;
}

PpSelectionType Selection::type() const {
    const bool somethingLeft = type_ == ppSelectionSlides ? !slides().empty() : !shapes().empty();
    return somethingLeft ? type_ : ppSelectionNone;
}

std::vector<SlidePtr> Selection::slides() const {
    return present(slides_, isInPresentation);
}

std::vector<ShapePtr> Selection::shapes() const {
    return present(shapes_, isOnSlide);
}

Span Selection::text() const {
    const std::vector<ShapePtr> holder = shapes();
    if (type_ != ppSelectionText || holder.empty() || !holder.front()->text) {
        return {};
    }
    const std::size_t size = holder.front()->text->text().size();
    const std::size_t start = std::min(text_.start, size);
    return {start, std::min(text_.length, size - start)};
}

} // namespace simulator
