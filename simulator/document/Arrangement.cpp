#include "simulator/document/Arrangement.h"

#include <algorithm>

namespace simulator {

namespace {

/// The two values of a frame along one direction.
struct Direction {
    float Frame::*start;
    float Frame::*length;
};

constexpr Direction horizontal{&Frame::left, &Frame::width};
constexpr Direction vertical{&Frame::top, &Frame::height};

void startAt(Shape& shape, const Direction& along, float start) {
    Frame frame = shape.frame();
    frame.*along.start = start;
    shape.setFrame(frame);
}

} // namespace

void align(const std::vector<ShapePtr>& shapes, MsoAlignCmd command, const Frame& area) {
    const Direction& along = command >= msoAlignTops ? vertical : horizontal;
    const float share = static_cast<float>(command % 3) / 2; // of the room left: none, half of it, all of it
    for (const ShapePtr& shape : shapes) {
        const float room = area.*along.length - shape->frame().*along.length;
        startAt(*shape, along, area.*along.start + room * share);
    }
}

void distribute(std::vector<ShapePtr> shapes, MsoDistributeCmd command, const Frame& area) {
    const Direction& along = command == msoDistributeVertically ? vertical : horizontal;
    std::stable_sort(shapes.begin(), shapes.end(), [&along](const ShapePtr& left, const ShapePtr& right) {
        return left->frame().*along.start < right->frame().*along.start;
    });
    float room = area.*along.length;
    for (const ShapePtr& shape : shapes) {
        room -= shape->frame().*along.length;
    }
    const float gap = shapes.size() < 2 ? 0 : room / static_cast<float>(shapes.size() - 1);
    float start = area.*along.start;
    for (const ShapePtr& shape : shapes) {
        startAt(*shape, along, start);
        start += shape->frame().*along.length + gap;
    }
}

} // namespace simulator
