#include "simulator/document/Connecting.h"

#include "simulator/document/Slide.h"

#include <cmath>
#include <numbers>

namespace simulator {

namespace {

struct Ends {
    Node begin;
    Node end;

    friend bool operator==(const Ends&, const Ends&) = default;
};

Ends endsOf(const Shape& connector) noexcept {
    const Frame& frame = connector.frame();
    const float right = frame.left + frame.width;
    const float bottom = frame.top + frame.height;
    return {{connector.horizontalFlip ? right : frame.left, connector.verticalFlip ? bottom : frame.top},
            {connector.horizontalFlip ? frame.left : right, connector.verticalFlip ? frame.top : bottom}};
}

void place(Shape& connector, const Ends& ends) {
    if (ends == endsOf(connector)) {
        return; // which ends the following of connectors that follow others
    }
    connector.horizontalFlip = ends.end.x < ends.begin.x;
    connector.verticalFlip = ends.end.y < ends.begin.y;
    connector.setFrame({std::min(ends.begin.x, ends.end.x), std::min(ends.begin.y, ends.end.y),
                        std::abs(ends.end.x - ends.begin.x), std::abs(ends.end.y - ends.begin.y)});
}

/// Where a site stands on the slide, in master units.
Node siteAt(const Shape& shape, std::int32_t site) noexcept {
    const Frame& frame = shape.frame();
    const double turn = 2 * std::numbers::pi * (site - 1) / connectionSites(shape);
    const double x = -std::sin(turn) * frame.width / 2;
    const double y = -std::cos(turn) * frame.height / 2;
    const double lean = double{shape.rotation} * std::numbers::pi / 180;
    const double middleX = frame.left + frame.width / 2;
    const double middleY = frame.top + frame.height / 2;
    return {toMasterUnits(static_cast<float>(middleX + x * std::cos(lean) - y * std::sin(lean))),
            toMasterUnits(static_cast<float>(middleY + x * std::sin(lean) + y * std::cos(lean)))};
}

ShapePtr findIn(const std::vector<ShapePtr>& shapes, std::int32_t id) noexcept {
    for (const ShapePtr& shape : shapes) {
        if (shape->id == id) {
            return shape;
        }
        if (ShapePtr inside = findIn(shape->items(), id)) {
            return inside;
        }
    }
    return nullptr;
}

/// Where an end of a connector is to stand: `now` where it holds on to nothing, or to a site that is not known here.
Node placeOf(const Shape& connector, const ConnectorEnd& end, const Node& now) {
    const ShapePtr shape = connectedShape(connector, end);
    return shape && end.site <= connectionSites(*shape) ? siteAt(*shape, end.site) : now;
}

void follow(Shape& connector) {
    const Ends ends = endsOf(connector);
    place(connector, {placeOf(connector, connector.connector->begin, ends.begin),
                      placeOf(connector, connector.connector->end, ends.end)});
}

/// True where a connector holds on to a shape, or to something in it.
bool holdsOnTo(const Shape& connector, const Shape& shape) noexcept {
    const auto isHeld = [&shape](const ConnectorEnd& end) {
        return end.shape != 0 && (end.shape == shape.id || findIn(shape.items(), end.shape));
    };
    return isHeld(connector.connector->begin) || isHeld(connector.connector->end);
}

} // namespace

std::int32_t connectionSites(const Shape& shape) noexcept {
    if (shape.connector || shape.isComposed() || shape.type == msoLine) {
        return 0;
    }
    return shape.autoShapeType == msoShapeOval ? 8 : 4;
}

ShapePtr connectedShape(const Shape& connector, const ConnectorEnd& end) noexcept {
    const SlidePtr slide = connector.slide.lock();
    return slide && end.shape != 0 ? findIn(slide->shapes(), end.shape) : nullptr;
}

void connect(Shape& connector, ConnectorEnd Connector::*end, const ShapePtr& shape, std::int32_t site) {
    (*connector.connector).*end = shape ? ConnectorEnd{shape->id, site} : ConnectorEnd();
    follow(connector);
}

void reroute(Shape& connector) {
    const ShapePtr first = connectedShape(connector, connector.connector->begin);
    const ShapePtr second = connectedShape(connector, connector.connector->end);
    if (!first || !second) {
        return;
    }
    float shortest = std::numeric_limits<float>::infinity();
    for (std::int32_t from = 1; from <= connectionSites(*first); ++from) {
        for (std::int32_t to = 1; to <= connectionSites(*second); ++to) {
            const Node begin = siteAt(*first, from);
            const Node end = siteAt(*second, to);
            if (const float way = std::hypot(end.x - begin.x, end.y - begin.y); way < shortest) {
                shortest = way;
                connector.connector->begin.site = from;
                connector.connector->end.site = to;
            }
        }
    }
    follow(connector);
}

void followConnections(const Shape& shape) {
    if (const SlidePtr slide = shape.slide.lock()) {
        for (const ShapePtr& each : slide->shapes()) {
            forEachLeaf(each, [&shape](const ShapePtr& leaf) {
                if (leaf->connector && holdsOnTo(*leaf, shape)) {
                    follow(*leaf);
                }
            });
        }
    }
}

} // namespace simulator
