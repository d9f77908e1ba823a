#include "simulator/document/Stacking.h"

#include <algorithm>

namespace simulator {

namespace {

/// Moves shapes towards the front, by one place or as far as they go; the foremost comes first, and the next ones stay
/// behind it.
void raise(Slide& slide, const std::vector<ShapePtr>& frontFirst, bool allTheWay) {
    std::size_t limit = slide.shapes().size() - 1;
    for (const ShapePtr& shape : frontFirst) {
        const std::size_t place = allTheWay ? limit : std::min(slide.placeOf(*shape) + 1, limit);
        slide.move(shape, place);
        limit = place - (place == 0 ? 0 : 1);
    }
}

void lower(Slide& slide, const std::vector<ShapePtr>& backFirst, bool allTheWay) {
    std::size_t limit = 0;
    for (const ShapePtr& shape : backFirst) {
        const std::size_t place = allTheWay ? limit : std::max(slide.placeOf(*shape), limit + 1) - 1;
        slide.move(shape, place);
        limit = place + 1;
    }
}

} // namespace

std::vector<ShapePtr> inStackingOrder(const Slide& slide, std::vector<ShapePtr> shapes) {
    std::sort(shapes.begin(), shapes.end(), [&slide](const ShapePtr& left, const ShapePtr& right) {
        return slide.placeOf(*left) < slide.placeOf(*right);
    });
    return shapes;
}

void restack(Slide& slide, const std::vector<ShapePtr>& shapes, MsoZOrderCmd command) {
    const std::vector<ShapePtr> backFirst = inStackingOrder(slide, shapes);
    const std::vector<ShapePtr> frontFirst(backFirst.rbegin(), backFirst.rend());
    switch (command) {
    case msoBringToFront: return raise(slide, frontFirst, true);
    case msoBringForward: return raise(slide, frontFirst, false);
    case msoSendToBack: return lower(slide, backFirst, true);
    case msoSendBackward: return lower(slide, backFirst, false);
    }
}

} // namespace simulator
