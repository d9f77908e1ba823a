#pragma once

#include "simulator/document/FreeformPath.h"

#include <optional>
#include <string_view>

namespace simulator {

/// A segment of a freeform as the members that draw one take it: a straight one or a smooth curve to a first point, or
/// a curve with two control points and its end. Points on the slide.
struct SegmentArguments {
    MsoSegmentType type = msoSegmentLine;
    MsoEditingType editing = msoEditingAuto;
    float x1 = 0;
    float y1 = 0;
    std::optional<float> x2;
    std::optional<float> y2;
    std::optional<float> x3;
    std::optional<float> y3;

    /// Draws the segment; raises an invalid request, for a member, where the arguments make none.
    void drawOn(FreeformPath& path, std::u16string_view member) const;
};

} // namespace simulator
