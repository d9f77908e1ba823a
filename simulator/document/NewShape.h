#pragma once

#include "simulator/document/Shape.h"

/// Shapes as PowerPoint makes them, before they are put on a slide.
namespace simulator::newShape {

[[nodiscard]] ShapePtr autoShape(std::int32_t autoShapeType, const Frame& frame);
[[nodiscard]] ShapePtr textBox(const Frame& frame);
/// A line from one point to another.
[[nodiscard]] ShapePtr line(const Node& begin, const Node& end);
/// A connector from one point to another.
[[nodiscard]] ShapePtr connector(MsoConnectorType type, const Node& begin, const Node& end);
/// A picture; its alternative text is the name of its file, without folder and extension.
[[nodiscard]] ShapePtr picture(std::u16string_view fileName, const Frame& frame);
/// A WordArt object, as large as its text needs.
[[nodiscard]] ShapePtr wordArt(const TextEffect& effect, float left, float top);
/// A freeform through corners, closed where the ends meet.
[[nodiscard]] ShapePtr freeform(std::vector<Node> corners);
[[nodiscard]] ShapePtr placeholder(PpPlaceholderType type, const Frame& frame);

/// A table of so many rows and columns, at least one of each, of equal height and width; rows are as high as an empty
/// line needs where the frame is lower.
[[nodiscard]] ShapePtr table(std::size_t rows, std::size_t columns, const Frame& frame);

/// The name of a shape until it is given one: "Rectangle 2", "Text Box 3" and so on, with its id.
[[nodiscard]] std::u16string usualName(const Shape& shape);

} // namespace simulator::newShape
