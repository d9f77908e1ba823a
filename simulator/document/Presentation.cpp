#include "simulator/document/Presentation.h"

#include "automation/Text.h"

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
    slide->presentation = weak_from_this();
    slides_.insert(slides_.begin() + static_cast<std::ptrdiff_t>(std::min(place, slides_.size())), slide);
}

void Presentation::remove(const SlidePtr& slide) {
    const SlidePtr removed = slide;
    if (std::erase(slides_, removed) != 0) {
        removed->presentation.reset();
    }
}

std::size_t Presentation::placeOf(const Slide& slide) const noexcept {
    const auto found = std::find_if(slides_.begin(), slides_.end(),
                                    [&slide](const SlidePtr& candidate) { return candidate.get() == &slide; });
    return static_cast<std::size_t>(found - slides_.begin());
}

void Presentation::move(const SlidePtr& slide, std::size_t place) {
    const SlidePtr kept = slide;
    if (std::erase(slides_, kept) != 0) {
        slides_.insert(slides_.begin() + static_cast<std::ptrdiff_t>(std::min(place, slides_.size())), kept);
    }
}

bool Presentation::isNameTaken(std::u16string_view wanted) const noexcept {
    return std::any_of(slides_.begin(), slides_.end(),
                       [wanted](const SlidePtr& slide) { return automation::equalIgnoringCase(slide->name, wanted); });
}

void markChanged(Presentation& presentation) noexcept {
    presentation.saved = false;
}

void markChanged(const Slide& slide) noexcept {
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
