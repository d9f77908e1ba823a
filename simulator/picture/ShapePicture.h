#pragma once

#include "simulator/picture/Outlines.h"
#include "simulator/picture/Paint.h"

namespace simulator::picture {

/// Draws shapes, each with what it casts, holds and says.
class ShapePicture {
public:
    /// Both must outlive this object.
    ShapePicture(Markup& out, const ColorScheme& colors) noexcept : out_(out), paint_(out, colors) {}

    /// Draws a shape and the items in it; nothing where it is hidden.
    void draw(const Shape& shape);
    /// Marks a shape as selected: a dashed frame with a handle at every corner and in the middle of every side.
    void markSelected(const Shape& shape);

private:
    void drawItems(const Shape& group);
    void drawLeaf(const Shape& shape);
    void drawBody(const Shape& shape);
    void drawShadow(const Shape& shape, const Outline& outline);
    void drawDepth(const Shape& shape, const Outline& outline);
    void drawPicture(const Shape& shape);
    void drawLabel(const Shape& shape, std::string_view text);

    Markup& out_;
    Paint paint_;
};

} // namespace simulator::picture
