#pragma once

#include "simulator/document/Presentation.h"

namespace simulator::picture {

/// How a picture is asked for.
struct Wanted {
    std::int32_t width = 0;         ///< pixels; 0 for one a point
    std::int32_t height = 0;        ///< pixels; 0 for one a point
    std::vector<ShapePtr> selected; ///< marked as selected
};

/// A slide as it is seen in PowerPoint, as an SVG document in UTF-8: outlines, fills, texts and their places are the
/// shapes' own; fonts are not measured, and textures, shadows and depth are hinted at.
[[nodiscard]] std::string drawSlide(const Presentation& presentation, const Slide& slide, const Wanted& wanted = {});

} // namespace simulator::picture
