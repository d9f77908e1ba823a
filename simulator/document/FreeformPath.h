#pragma once

#include "simulator/document/Shape.h"

namespace simulator {

/// The path of a freeform while it is drawn, segment after segment.
class FreeformPath {
public:
    explicit FreeformPath(const Node& start) : start_(start) {}

    void lineTo(const Node& end) { segments_.push_back({Kind::Line, {}, {}, end}); }
    /// A curve with its two control points.
    void curveTo(const Node& first, const Node& second, const Node& end) {
        segments_.push_back({Kind::Curve, first, second, end});
    }
    /// A curve that passes smoothly from the segment before to the one after.
    void smoothTo(const Node& end) { segments_.push_back({Kind::Smooth, {}, {}, end}); }

    [[nodiscard]] std::size_t segments() const noexcept { return segments_.size(); }
    /// The corners with their control points.
    [[nodiscard]] std::vector<Node> nodes() const;

private:
    enum class Kind : std::uint8_t { Line, Curve, Smooth };
    struct Segment {
        Kind kind;
        Node first;
        Node second;
        Node end;
    };

    /// The end of a segment, counted from 0; the start for -1, the nearest one for a number beyond.
    [[nodiscard]] const Node& cornerAt(std::ptrdiff_t segment) const noexcept;

    Node start_;
    std::vector<Segment> segments_;
};

} // namespace simulator
