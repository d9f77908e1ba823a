#pragma once

#include "simulator/document/Shape.h"

namespace simulator {

/// How high a text is that is so wide, in points, margins included; of upright text, the margins alone.
[[nodiscard]] float fittingHeight(const TextStory& text, float width);

/// Gives a shape another frame, as far as its text lets it: see `fitToText`. Of a table, columns keep what their cells'
/// margins need and rows what their text needs.
void resize(Shape& shape, const Frame& frame);

/// Gives a shape that is to fit its text the size that the text takes with its margins: its height, and its width where
/// the text does not wrap. What grows does so away from where the text is anchored. The
/// rows of a cell in a table do the same. Nothing happens to other shapes.
void fitToText(Shape& shape);

} // namespace simulator
