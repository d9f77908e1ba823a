#include "simulator/objects/NodeSet.h"

namespace simulator {

ShapeSet leavesOf(const ShapeSet& shapes) {
    if (shapes.size() == 1) {
        if (const ShapePtr shape = shapes.at(0); !shape->isComposed()) {
            return shape;
        }
    }
    std::vector<ShapePtr> leaves;
    for (const ShapePtr& shape : shapes.all()) {
        forEachLeaf(shape, [&leaves](const ShapePtr& leaf) { leaves.push_back(leaf); });
    }
    return leaves;
}

ShapeSet outlinesOf(const ShapeSet& shapes) {
    std::vector<ShapePtr> outlines;
    for (const ShapePtr& shape : shapes.all()) {
        const std::size_t before = outlines.size();
        if (shape->type == msoTable) {
            std::copy_if(shape->items().begin(), shape->items().end(), std::back_inserter(outlines),
                         [](const ShapePtr& item) { return item->type == msoLine; });
        }
        if (outlines.size() == before) {
            forEachLeaf(shape, [&outlines](const ShapePtr& leaf) { outlines.push_back(leaf); });
        }
    }
    return outlines;
}

} // namespace simulator
