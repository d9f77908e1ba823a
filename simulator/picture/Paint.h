#pragma once

#include "simulator/document/Shape.h"
#include "simulator/picture/Markup.h"

#include <set>

namespace simulator::picture {

/// A colour as SVG writes it: "#rrggbb".
[[nodiscard]] std::string hex(std::int32_t rgb);

/// Parts of a colour, darker the nearer `share` is to 0.
[[nodiscard]] std::int32_t darkened(std::int32_t rgb, float share) noexcept;

/// Turns fills and lines into attributes. A gradient or a pattern is defined in the picture before it is first used; it
/// is named after what it holds, so that pictures on one page cannot take each other's.
class Paint {
public:
    /// Both must outlive this object.
    Paint(Markup& out, const ColorScheme& colors) noexcept : out_(out), colors_(colors) {}

    [[nodiscard]] std::string color(const Color& color) const { return hex(color.in(colors_)); }
    [[nodiscard]] const ColorScheme& colors() const noexcept { return colors_; }

    [[nodiscard]] Markup::Attributes fill(const Fill& fill);
    [[nodiscard]] Markup::Attributes line(const Line& line) const;

private:
    [[nodiscard]] std::string paintOf(const Fill& fill);
    [[nodiscard]] std::string defined(const std::string& name, const std::string& attributes,
                                      const std::string& content);

    Markup& out_;
    const ColorScheme& colors_;
    std::set<std::string> defined_;
};

} // namespace simulator::picture
