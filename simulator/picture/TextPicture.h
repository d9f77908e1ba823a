#pragma once

#include "simulator/picture/Paint.h"

namespace simulator::picture {

/// Draws the text that a shape holds, row by row. In a placeholder it is made smaller where it would not fit.
void drawText(const Shape& shape, const Paint& paint, Markup& out);

/// Draws the text of a WordArt object, stretched over its frame, in the colours given.
void drawWordArt(const Shape& shape, const Markup::Attributes& colors, Markup& out);

} // namespace simulator::picture
