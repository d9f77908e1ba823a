#pragma once

#include "simulator/document/Shape.h"

#include <string>

namespace simulator::picture {

/// The lines of a shape, as SVG has paths, in points on the slide.
struct Outline {
    std::string path;    ///< what is filled and drawn around
    std::string detail;  ///< what is drawn on top: the edges of a cube, the mouth of a face; often empty
    bool isOpen = false; ///< a line that nothing fills
    bool isKnown = true; ///< false for a kind of AutoShape whose frame stands for it
};

/// The outline of a shape that is no group, before it is flipped and turned.
[[nodiscard]] Outline outlineOf(const Shape& shape);

} // namespace simulator::picture
