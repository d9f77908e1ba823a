#include "simulator/objects/NodeSet.h"

namespace simulator {

ShapeSet leavesOf(const ShapeSet& shapes) {
    if (shapes.size() == 1) {
        if (const ShapePtr shape = shapes.at(0); shape->type != msoGroup) {
            return shape;
        }
    }
    std::vector<ShapePtr> leaves;
    for (const ShapePtr& shape : shapes.all()) {
        forEachLeaf(shape, [&leaves](const ShapePtr& leaf) { leaves.push_back(leaf); });
    }
    return leaves;
}

} // namespace simulator
