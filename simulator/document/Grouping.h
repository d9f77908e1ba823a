#pragma once

#include "simulator/document/Slide.h"

namespace simulator {

/// Makes one group of shapes that stand directly on a slide. It takes the place of the topmost one and bears no tags;
/// the shapes themselves move into it, in their order.
ShapePtr group(Slide& slide, const std::vector<ShapePtr>& shapes);

/// Puts the items of a group that stands directly on a slide in its place, and drops the group. Answers with the items.
std::vector<ShapePtr> ungroup(Slide& slide, const ShapePtr& group);

/// Deletes a shape from its slide or group; a group that is left with one item is dissolved. Nothing happens
/// to a shape that is on no slide any more.
void erase(const ShapePtr& shape);

} // namespace simulator
