#pragma once

#include <cstdint>
#include <string_view>

namespace simulator::picture {

/// How a kind of AutoShape is drawn. Places are per cent of the shape's frame, two numbers each, as SVG has them in a
/// path; only an arc differs: "A rx ry, large sweep, x y".
struct OutlineRow {
    std::int32_t autoShapeType = 0;
    std::string_view path;
    std::string_view detail;
    bool isOpen = false;
};

/// The row of a kind of AutoShape; null for one that is not in the table.
[[nodiscard]] const OutlineRow* findOutline(std::int32_t autoShapeType) noexcept;

} // namespace simulator::picture
