#include "simulator/process/SlideShowWindow.h"

#include <algorithm>

namespace simulator {

namespace {

constexpr std::int32_t ppShowSlideRange = 2;
constexpr std::int32_t ppShowTypeKiosk = 3;
constexpr Frame fullScreen{0, 0, 768, 576};

} // namespace

SlideShowWindow::SlideShowWindow(const PresentationPtr& shownPresentation)
    : presentation(shownPresentation), frame(fullScreen) {
    first();
}

std::vector<SlidePtr> SlideShowWindow::slides() const {
    std::vector<SlidePtr> wanted;
    const PresentationPtr document = presentation.lock();
    if (!document) {
        return wanted;
    }
    const SlideShowSetup& setup = document->slideShow;
    const auto count = static_cast<std::int32_t>(document->slides().size());
    const bool isRange = setup.rangeType == ppShowSlideRange;
    const std::int32_t from = isRange ? std::max(setup.startingSlide, 1) : 1;
    const std::int32_t to = isRange && setup.endingSlide != 0 ? std::min(setup.endingSlide, count) : count;
    for (std::int32_t place = from; place <= to; ++place) {
        const SlidePtr& slide = document->slides()[static_cast<std::size_t>(place) - 1];
        if (!slide->transition.isHidden) {
            wanted.push_back(slide);
        }
    }
    return wanted;
}

std::int32_t SlideShowWindow::position() const {
    const std::vector<SlidePtr> all = slides();
    const auto found = std::find(all.begin(), all.end(), shown());
    return found == all.end() ? 0 : static_cast<std::int32_t>(found - all.begin()) + 1;
}

std::size_t SlideShowWindow::placeInAll() const {
    const PresentationPtr document = presentation.lock();
    const SlidePtr slide = shown();
    const std::size_t place = document && slide ? document->placeOf(*slide) : place_;
    return document && place < document->slides().size() ? place : place_;
}

void SlideShowWindow::show(const SlidePtr& slide) {
    before_ = slide_;
    slide_ = slide;
    place_ = placeInAll();
    state = ppSlideShowRunning;
}

void SlideShowWindow::next() {
    const PresentationPtr document = presentation.lock();
    const std::vector<SlidePtr> all = slides();
    const SlidePtr current = shown();
    const auto found = std::find_if(all.begin(), all.end(), [&](const SlidePtr& slide) {
        return slide != current && document->placeOf(*slide) >= placeInAll();
    });
    if (found != all.end()) {
        show(*found);
    } else if (document && (document->slideShow.loopsUntilStopped || document->slideShow.showType == ppShowTypeKiosk)) {
        first();
    } else {
        end();
    }
}

void SlideShowWindow::previous() {
    const PresentationPtr document = presentation.lock();
    const std::vector<SlidePtr> all = slides();
    const auto found = std::find_if(all.rbegin(), all.rend(),
                                    [&](const SlidePtr& slide) { return document->placeOf(*slide) < placeInAll(); });
    if (found != all.rend()) {
        show(*found);
    }
}

void SlideShowWindow::first() {
    if (const std::vector<SlidePtr> all = slides(); !all.empty()) {
        show(all.front());
    }
}

void SlideShowWindow::last() {
    if (const std::vector<SlidePtr> all = slides(); !all.empty()) {
        show(all.back());
    }
}

} // namespace simulator
