#include "simulator/document/Shape.h"

#include "simulator/document/Connecting.h"
#include "simulator/document/Order.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace simulator {

namespace {

constexpr float masterUnitsPerPoint = 8;

/// Grows from nothing around points.
class Bounds {
public:
    void include(float x, float y) noexcept {
        left_ = std::min(left_, x);
        top_ = std::min(top_, y);
        right_ = std::max(right_, x);
        bottom_ = std::max(bottom_, y);
    }
    [[nodiscard]] Frame frame() const noexcept {
        return left_ > right_ ? Frame() : Frame{left_, top_, right_ - left_, bottom_ - top_};
    }

private:
    static constexpr float infinity = std::numeric_limits<float>::infinity();
    float left_ = infinity;
    float top_ = infinity;
    float right_ = -infinity;
    float bottom_ = -infinity;
};

/// Carries places from one frame to another. Edges are carried rather than lengths, so that what touched the old
/// frame touches the new one.
class Mapping {
public:
    Mapping(const Frame& from, const Frame& to) noexcept : from_(from), to_(to) {}

    [[nodiscard]] float x(float at) const noexcept { return along(at, from_.left, from_.width, to_.left, to_.width); }
    [[nodiscard]] float y(float at) const noexcept { return along(at, from_.top, from_.height, to_.top, to_.height); }

    [[nodiscard]] Frame frame(const Frame& at) const noexcept {
        const float left = x(at.left);
        const float top = y(at.top);
        return {left, top, x(at.left + at.width) - left, y(at.top + at.height) - top};
    }

private:
    static float along(float at, float from, float fromLength, float to, float toLength) noexcept {
        const float scale = fromLength == 0 ? 1 : toLength / fromLength;
        return toMasterUnits(to + (at - from) * scale);
    }

    Frame from_;
    Frame to_;
};

/// What a shape covers, turned about its middle.
Frame extentOf(const Shape& shape) noexcept {
    const Frame straight = liesOnItsSide(shape.rotation) ? onItsSide(shape.frame()) : shape.frame();
    const double lean = std::remainder(static_cast<double>(shape.rotation), 90.0) * std::numbers::pi / 180;
    if (lean == 0) {
        return straight;
    }
    const double width = straight.width * std::cos(lean) + straight.height * std::abs(std::sin(lean));
    const double height = straight.height * std::cos(lean) + straight.width * std::abs(std::sin(lean));
    const auto edge = [](float start, float length, double wanted) {
        return toMasterUnits(static_cast<float>(start + (length - wanted) / 2));
    };
    return {edge(straight.left, straight.width, width), edge(straight.top, straight.height, height),
            toMasterUnits(static_cast<float>(width)), toMasterUnits(static_cast<float>(height))};
}

bool endsMeet(const std::vector<Node>& nodes) noexcept {
    return nodes.size() > 2 && nodes.front().x == nodes.back().x && nodes.front().y == nodes.back().y;
}

} // namespace

float toMasterUnits(float points) noexcept {
    return std::round(points * masterUnitsPerPoint) / masterUnitsPerPoint + 0.0F; // the sum turns -0 into 0
}

bool liesOnItsSide(float rotation) noexcept {
    const double turn = std::fmod(std::fmod(static_cast<double>(rotation), 180.0) + 180.0, 180.0);
    return turn >= 45 && turn < 135;
}

Frame onItsSide(const Frame& frame) noexcept {
    const float shift = std::trunc((frame.width - frame.height) * masterUnitsPerPoint / 2) / masterUnitsPerPoint;
    return {frame.left + shift, frame.top - shift, frame.height, frame.width};
}

Frame boundsOf(const std::vector<ShapePtr>& shapes) noexcept {
    Bounds bounds;
    for (const ShapePtr& shape : shapes) {
        const Frame frame = extentOf(*shape);
        bounds.include(frame.left, frame.top);
        bounds.include(frame.left + frame.width, frame.top + frame.height);
    }
    return bounds.frame();
}

Frame boundsOf(const std::vector<Node>& nodes) noexcept {
    Bounds bounds;
    for (const Node& node : nodes) {
        bounds.include(node.x, node.y);
    }
    return bounds.frame();
}

void Shape::setFrame(const Frame& frame) {
    place(
        {toMasterUnits(frame.left), toMasterUnits(frame.top), toMasterUnits(frame.width), toMasterUnits(frame.height)});
    refitGroups();
    followConnections(*this);
}

void Shape::turnTo(float degrees) {
    rotation = degrees;
    refitGroups();
    followConnections(*this);
}

void Shape::place(const Frame& frame) {
    if (!items_.empty()) {
        const Mapping mapping(frame_, frame);
        for (const ShapePtr& item : items_) {
            const bool lies = liesOnItsSide(item->rotation);
            const Frame moved = mapping.frame(lies ? onItsSide(item->frame_) : item->frame_);
            item->place(lies ? onItsSide(moved) : moved);
        }
    }
    if (!nodes.empty()) {
        const Mapping mapping(boundsOf(nodes), frame);
        for (Node& node : nodes) {
            node = {mapping.x(node.x), mapping.y(node.y), node.curve};
        }
    }
    frame_ = nodes.empty() ? frame : boundsOf(nodes);
}

void Shape::refitGroups() const {
    for (ShapePtr outer = group(); outer; outer = outer->group()) {
        outer->frame_ = boundsOf(outer->items_);
    }
}

void Shape::setNodes(std::vector<Node> corners) {
    const bool closedWithoutEnds = closed && !endsMeet(nodes);
    for (Node& corner : corners) {
        corner = {toMasterUnits(corner.x), toMasterUnits(corner.y), corner.curve};
    }
    nodes = std::move(corners);
    closed = closedWithoutEnds || endsMeet(nodes);
    frame_ = boundsOf(nodes);
    refitGroups();
}

void Shape::adopt(const ShapePtr& group, std::vector<ShapePtr> items) {
    const Frame frame = boundsOf(items);
    adopt(group, std::move(items), frame);
}

void Shape::adopt(const ShapePtr& group, std::vector<ShapePtr> items, const Frame& frame) {
    for (const ShapePtr& item : items) {
        item->group_ = group;
        item->settle(group->slide);
        item->formerGroup = 0;
    }
    group->items_ = std::move(items);
    group->frame_ = frame;
    group->refitGroups();
}

std::vector<ShapePtr> Shape::release() {
    for (const ShapePtr& item : items_) {
        item->group_.reset();
        item->formerGroup = id;
    }
    return std::exchange(items_, {});
}

void Shape::release(const ShapePtr& item) {
    if (const ShapePtr released = order::take(items_, item)) {
        released->group_.reset();
    }
    frame_ = boundsOf(items_);
    refitGroups();
}

void Shape::replace(const ShapePtr& item, const ShapePtr& successor) {
    successor->group_ = std::exchange(item->group_, {});
    successor->settle(slide);
    std::replace(items_.begin(), items_.end(), item, successor);
    frame_ = boundsOf(items_);
    refitGroups();
}

void Shape::settle(const std::weak_ptr<Slide>& ground) noexcept {
    slide = ground;
    for (const ShapePtr& item : items_) {
        item->settle(ground);
    }
}

void Shape::showShadow(bool shown) noexcept {
    shadow.visible = shown;
    if (shown) {
        threeD.visible = false;
    }
}

void Shape::showThreeD(bool shown) noexcept {
    threeD.visible = shown;
    if (shown) {
        shadow.visible = false;
    }
}

ShapePtr Shape::clone() const {
    auto copy = std::make_shared<Shape>(*this);
    copy->slide.reset();
    copy->group_.reset();
    copy->formerGroup = 0;
    for (ShapePtr& item : copy->items_) {
        item = item->clone();
        item->group_ = copy;
    }
    return copy;
}

} // namespace simulator
