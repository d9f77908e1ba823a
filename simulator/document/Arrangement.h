#pragma once

#include "simulator/document/Shape.h"

namespace simulator {

/// Aligns shapes to an edge or to the middle of an area.
void align(const std::vector<ShapePtr>& shapes, MsoAlignCmd command, const Frame& area);

/// Spreads shapes over an area with equal gaps between them, in the order in which they lie.
void distribute(std::vector<ShapePtr> shapes, MsoDistributeCmd command, const Frame& area);

} // namespace simulator
