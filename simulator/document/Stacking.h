#pragma once

#include "simulator/document/Slide.h"

namespace simulator {

/// Shapes that stand directly on a slide, from back to front.
[[nodiscard]] std::vector<ShapePtr> inStackingOrder(const Slide& slide, std::vector<ShapePtr> shapes);

/// Brings shapes that stand directly on a slide forward or sends them backward; they keep their order among themselves.
void restack(Slide& slide, const std::vector<ShapePtr>& shapes, MsoZOrderCmd command);

} // namespace simulator
