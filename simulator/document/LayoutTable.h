#pragma once

#include "simulator/document/Shape.h"

#include <array>
#include <span>

namespace simulator {

/// How the placeholders of a layout are arranged, with the numbers that presentations' files give this.
enum class Arrangement : std::int32_t {
    TitleSlide = 0,
    TitleAndBody = 1,
    TitleOnly = 7,
    TwoColumns = 8,
    TwoRows = 9,
    ColumnAndTwoRows = 10,
    TwoRowsAndColumn = 11,
    TwoColumnsAndRow = 13,
    Four = 14,
    One = 15,
    Blank = 16,
    Upright = 17,
    UprightOverRow = 18,
};

/// A layout of slides: which placeholders it has, from back to front, and how they are arranged.
struct Layout {
    PpSlideLayout number;
    Arrangement arrangement;
    std::array<PpPlaceholderType, 5> types; ///< ended by 0

    /// The number of its placeholders.
    [[nodiscard]] std::size_t size() const noexcept;
};

/// The place of a placeholder on a slide of 720 x 540 points, and the size of text in it.
struct LayoutPlace {
    Frame frame;
    float textSize = 0;
};

/// All layouts of PowerPoint 2003.
[[nodiscard]] std::span<const Layout> layouts() noexcept;
/// Null for a layout that is not known.
[[nodiscard]] const Layout* findLayout(PpSlideLayout number) noexcept;
/// Where the placeholders of an arrangement stand, in their order.
[[nodiscard]] std::span<const LayoutPlace> placesOf(Arrangement arrangement) noexcept;

} // namespace simulator
