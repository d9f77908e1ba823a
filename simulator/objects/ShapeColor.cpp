#include "simulator/objects/ShapeColor.h"

namespace simulator {

std::shared_ptr<ColorFormatObject> colorOf(const SessionPtr& session, const ShapeSet& shapes, Color& (*part)(Shape&)) {
    return std::make_shared<ColorFormatObject>(
        session, [shapes, part] { return part(*shapes.first()); },
        [shapes, part](Color color) { shapes.change([&](Shape& shape) { part(shape) = color; }); },
        [shapes] { return alive(alive(shapes.first()->slide)->presentation)->colors; });
}

} // namespace simulator
