#include "simulator/document/Presentation.h"

#include "automation/Text.h"
#include "simulator/document/Order.h"

#include <algorithm>

namespace simulator {

void Presentation::insert(const SlidePtr& slide, std::size_t place) {
    if (slide->id == 0) {
        slide->id = lastSlideId_ + 1;
    }
    lastSlideId_ = std::max(lastSlideId_, slide->id);
    if (slide->name.empty() || isNameTaken(slide->name)) {
        slide->name = u"Slide" + automation::decimal(slide->id - reservedIds);
    }
    slide->settle(weak_from_this());
    order::insert(slides_, slide, place);
}

void Presentation::remove(const SlidePtr& slide) {
    if (const SlidePtr removed = order::take(slides_, slide)) {
        removed->settle({});
    }
}

std::size_t Presentation::placeOf(const Slide& slide) const noexcept {
    return order::placeOf(slides_, slide);
}

void Presentation::move(const SlidePtr& slide, std::size_t place) {
    order::move(slides_, slide, place);
}

bool Presentation::isNameTaken(std::u16string_view wanted) const noexcept {
    return std::any_of(slides_.begin(), slides_.end(),
                       [wanted](const SlidePtr& slide) { return automation::equalIgnoringCase(slide->name, wanted); });
}

void markChanged(Presentation& presentation) noexcept {
    presentation.saved = false;
}

void markChanged(Slide& slide) noexcept {
    slide.isTouched = true;
    if (const PresentationPtr presentation = slide.presentation.lock()) {
        markChanged(*presentation);
    }
}

void markChanged(const Shape& shape) noexcept {
    if (const SlidePtr slide = shape.slide.lock()) {
        markChanged(*slide);
    }
}

} // namespace simulator
