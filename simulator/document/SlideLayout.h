#pragma once

#include "simulator/document/Slide.h"

#include <optional>
#include <span>

namespace simulator {

/// A placeholder that a layout puts on a slide, with its place on a slide of 720 x 540 points.
struct LayoutPlaceholder {
    PpPlaceholderType type = ppPlaceholderTitle;
    Frame frame;
};

/// The placeholders of a layout, from back to front; nothing for a layout that is not known.
[[nodiscard]] std::optional<std::span<const LayoutPlaceholder>> placeholdersOf(PpSlideLayout layout) noexcept;

/// Gives a slide of a presentation a layout that is known: placeholders that serve the same purpose in both layouts
/// keep their text and move to their new place, empty ones that it does not have go, missing ones come.
void layOut(Slide& slide, PpSlideLayout layout);

/// The placeholder of a slide that serves as title, or as body text; null where there is none.
[[nodiscard]] ShapePtr findPlaceholder(const Slide& slide, PpPlaceholderType type) noexcept;

/// Puts a placeholder that the slide's layout has, and that was deleted, back on the slide; null where there is none of
/// this type to put back.
ShapePtr restorePlaceholder(Slide& slide, PpPlaceholderType type);

} // namespace simulator
