#include "simulator/objects/ShapeSelecting.h"

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

namespace {

/// The window in which shapes of a presentation are selected: the active one where it shows it.
DocumentWindowPtr windowFor(const Process& process, const Presentation& presentation) {
    const DocumentWindowPtr active = process.activeWindow();
    const bool isShown = active && active->presentation.lock().get() == &presentation;
    return isShown ? active : process.windowOf(presentation);
}

} // namespace

void selectShapes(const Process& process, const std::vector<ShapePtr>& shapes, bool replace) {
    if (shapes.empty()) {
        errors::invalidRequest(u"Shape (membre inconnu)", u"Il n'y a rien à sélectionner.");
    }
    const SlidePtr slide = alive(shapes.front()->slide);
    const DocumentWindowPtr window = windowFor(process, *alive(slide->presentation));
    const bool takesShapes =
        window && (window->viewType == DocumentWindow::normalView || window->viewType == DocumentWindow::slideView);
    if (!takesShapes || window->shown() != slide) {
        errors::invalidRequest(u"Shape (membre inconnu)",
                               u"Pour sélectionner une forme, la vue de sa diapositive doit être active.");
    }
    window->selection.selectShapes(shapes, replace);
    window->activePane = DocumentWindow::slidePane;
}

} // namespace simulator
