#include "tests/trials/learners/judges/Judges.h"

namespace trials::learners::judges {

namespace {

using simulator::DocumentWindow;

/// True where the window shows a slide so that its shapes can be selected.
bool showsForSelecting(DocumentWindow& window, const simulator::Slide& slide) {
    return (window.viewType == DocumentWindow::normalView || window.viewType == DocumentWindow::slideView) &&
           window.shown().get() == &slide;
}

} // namespace

Verdict curve(const Scene& scene) {
    if (scene.slide(1) == nullptr) {
        return Verdict::refused();
    }
    const Work work(scene, 1);
    const std::size_t freeforms = work.added(simulator::msoFreeform);
    if (work.addedGroups() != 0 || freeforms != 1) {
        return Verdict::of(work.addedGroups() != 0 ? u"Z" : freeforms == 0 ? u"A" : u"B");
    }
    if (!showsForSelecting(*scene.window(), *scene.slide(1))) {
        return Verdict::refused();
    }
    const bool isClosed = work.addedThat([](const Found& found) { return found.shape->closed; }) != 0;
    return Verdict::of(isClosed ? u"" : u"C");
}

} // namespace trials::learners::judges
