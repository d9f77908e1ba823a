#pragma once

#include "simulator/document/Shape.h"

namespace simulator {

/// Gives a shape that is to fit its text the size that the text takes with its margins: its height, and its width where
/// the text does not wrap. What grows does so away from where the text is anchored. Nothing happens to other shapes.
void fitToText(Shape& shape);

} // namespace simulator
