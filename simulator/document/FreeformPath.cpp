#include "simulator/document/FreeformPath.h"

#include <algorithm>

namespace simulator {

namespace {

/// The control point beside `at` on a curve that runs there in parallel to the way from `before` to `after`.
Node control(const Node& at, const Node& before, const Node& after) noexcept {
    return {at.x + (after.x - before.x) / 6, at.y + (after.y - before.y) / 6, true};
}

Node asControl(const Node& at) noexcept {
    return {at.x, at.y, true};
}

} // namespace

const Node& FreeformPath::cornerAt(std::ptrdiff_t segment) const noexcept {
    if (segment < 0) {
        return start_;
    }
    return segments_[std::min(static_cast<std::size_t>(segment), segments_.size() - 1)].end;
}

std::vector<Node> FreeformPath::nodes() const {
    std::vector<Node> nodes{start_};
    for (std::size_t i = 0; i < segments_.size(); ++i) {
        const Segment& segment = segments_[i];
        const auto place = static_cast<std::ptrdiff_t>(i);
        if (segment.kind == Kind::Curve) {
            nodes.insert(nodes.end(), {asControl(segment.first), asControl(segment.second)});
        } else if (segment.kind == Kind::Smooth) {
            const Node& from = cornerAt(place - 1);
            nodes.push_back(control(from, cornerAt(place - 2), segment.end));
            nodes.push_back(control(segment.end, cornerAt(place + 1), from));
        }
        nodes.push_back(segment.end);
    }
    return nodes;
}

} // namespace simulator
