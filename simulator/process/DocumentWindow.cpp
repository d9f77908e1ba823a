#include "simulator/process/DocumentWindow.h"

#include <algorithm>

namespace simulator {

SlidePtr DocumentWindow::shown() {
    const PresentationPtr document = presentation.lock();
    if (!document || document->slides().empty()) {
        return nullptr;
    }
    const std::size_t count = document->slides().size();
    const SlidePtr last = slide.lock();
    const std::size_t place = last ? document->placeOf(*last) : count;
    place_ = place < count ? place : std::min(place_, count - 1);
    slide = document->slides()[place_];
    return document->slides()[place_];
}

void DocumentWindow::show(const SlidePtr& other) {
    if (shown() != other) {
        selection.selectNothing();
    }
    slide = other;
    if (const PresentationPtr document = presentation.lock()) {
        place_ = document->placeOf(*other);
    }
}

} // namespace simulator
