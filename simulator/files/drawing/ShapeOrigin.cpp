#include "simulator/files/drawing/ShapeOrigin.h"

#include <tuple>

namespace simulator::drawing {

const ShapeOrigin* originOf(const Shape& shape, const Origin* document) noexcept {
    const auto* const origin = dynamic_cast<const ShapeOrigin*>(shape.origin.get());
    return origin != nullptr && origin->document.get() == document ? origin : nullptr;
}

bool isUnchanged(const Shape& shape, const Shape& asRead) {
    const auto plain = [](const Shape& each) {
        return std::tie(each.id, each.name, each.type, each.autoShapeType, each.rotation, each.horizontalFlip,
                        each.verticalFlip, each.visible, each.lockAspectRatio, each.alternativeText, each.tags,
                        each.fill, each.line, each.shadow, each.threeD, each.text, each.textEffect, each.connector,
                        each.table, each.placeholder, each.closed, each.formerGroup);
    };
    return plain(shape) == plain(asRead) && shape.frame() == asRead.frame() && shape.nodes == asRead.nodes;
}

} // namespace simulator::drawing
