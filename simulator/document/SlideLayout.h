#pragma once

#include "simulator/document/LayoutTable.h"
#include "simulator/document/Slide.h"

namespace simulator {

/// Gives a slide of a presentation a layout: placeholders that serve the same purpose in both layouts keep their text
/// and move to their new place, empty ones that it does not have go, missing ones come.
void layOut(Slide& slide, const Layout& layout);

/// The placeholder of a slide that serves as title, or as text; the first where there are several, null where there is
/// none.
[[nodiscard]] ShapePtr findPlaceholder(const Slide& slide, PpPlaceholderType type) noexcept;

/// Puts a placeholder that the slide's layout has, or every master of its kind, and that was deleted, back on it; null
/// where there is none of this type to put back.
ShapePtr restorePlaceholder(Slide& slide, PpPlaceholderType type);

} // namespace simulator
