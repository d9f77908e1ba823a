#include "simulator/files/drawing/FreeformCodes.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/PropertyIds.h"

#include <algorithm>

namespace simulator::drawing {

namespace {

using files::ByteReader;
using files::ByteWriter;

/// Kinds of segments, in the upper three bits; the lower ones count them.
namespace segment {
enum : std::uint16_t { Line = 0, Curve = 1, Move = 2, Close = 3, End = 4, Escape = 5 };
constexpr unsigned shift = 13;
constexpr std::uint16_t countMask = 0x1FFF;
} // namespace segment

/// Kinds of paths that need no segments.
namespace path {
enum : std::uint32_t { Lines = 0, ClosedLines = 1, Curves = 2, ClosedCurves = 3, Complex = 4 };
} // namespace path

constexpr std::uint32_t formula = 0x80000000;
constexpr std::uint32_t usualExtent = 21600;

struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

std::vector<Point> pointsOf(const Property& property) {
    ByteReader in(property.bytes, "the corners of a freeform");
    std::vector<Point> points;
    const ArrayHead head(in);
    const bool areShort = head.elementSize == 4;
    for (std::size_t i = 0; i < head.count; ++i) {
        Point& point = points.emplace_back();
        point.x = areShort ? in.read<std::int16_t>() : in.read<std::int32_t>();
        point.y = areShort ? in.read<std::int16_t>() : in.read<std::int32_t>();
    }
    return points;
}

std::vector<std::uint16_t> segmentsOf(const Property* property) {
    std::vector<std::uint16_t> segments;
    if (property != nullptr && !property->bytes.empty()) {
        ByteReader in(property->bytes, "the segments of a freeform");
        const ArrayHead head(in);
        for (std::size_t i = 0; i < head.count; ++i) {
            segments.push_back(in.read<std::uint16_t>());
        }
    }
    return segments;
}

/// Carries points to the slide one after the other.
class CornerReader {
public:
    CornerReader(const Looks& looks, const Frame& frame)
        : left_(number(looks, property::geometryLeft, 0)), top_(number(looks, property::geometryTop, 0)),
          width_(number(looks, property::geometryRight, usualExtent) - left_),
          height_(number(looks, property::geometryBottom, usualExtent) - top_), frame_(frame) {}

    void add(const Point& point, bool isControl) {
        corners_.nodes.push_back({along(point.x, left_, width_, frame_.left, frame_.width),
                                  along(point.y, top_, height_, frame_.top, frame_.height), isControl});
    }
    void close() noexcept { corners_.isClosed = true; }
    /// A path is closed too where its ends meet.
    [[nodiscard]] Corners take() noexcept {
        const std::vector<Node>& nodes = corners_.nodes;
        const bool endsMeet =
            nodes.size() > 2 && nodes.front().x == nodes.back().x && nodes.front().y == nodes.back().y;
        corners_.isClosed = corners_.isClosed || endsMeet;
        return std::move(corners_);
    }

private:
    static double number(const Looks& looks, std::uint16_t id, std::uint32_t otherwise) {
        return static_cast<std::int32_t>(looks.number(id, otherwise));
    }
    static float along(double at, double from, double extent, float to, float length) {
        const double points = extent == 0 ? 0 : (at - from) * double{length} / extent;
        return toMasterUnits(static_cast<float>(double{to} + points));
    }

    double left_;
    double top_;
    double width_;
    double height_;
    Frame frame_;
    Corners corners_;
};

void follow(CornerReader& out, const std::vector<Point>& points, const std::vector<std::uint16_t>& segments) {
    std::size_t place = 0;
    for (const std::uint16_t each : segments) {
        const auto kind = static_cast<std::uint16_t>(each >> segment::shift);
        const std::size_t count = each & segment::countMask;
        if (kind == segment::Close) {
            out.close();
        } else if (kind == segment::Curve) {
            for (std::size_t i = 0; i < count * 3 && place < points.size(); ++i) {
                out.add(points[place++], i % 3 != 2);
            }
        } else if (kind == segment::Line || kind == segment::Move) {
            for (std::size_t i = 0; i < std::max<std::size_t>(count, 1) && place < points.size(); ++i) {
                out.add(points[place++], false);
            }
        }
    }
}

void followPlainly(CornerReader& out, const std::vector<Point>& points, std::uint32_t kind) {
    const bool areCurves = kind == path::Curves || kind == path::ClosedCurves;
    for (std::size_t i = 0; i < points.size(); ++i) {
        out.add(points[i], areCurves && i % 3 != 0);
    }
    if (kind == path::ClosedLines || kind == path::ClosedCurves) {
        out.close();
    }
}

std::string arrayOf(const std::vector<std::uint16_t>& elements) {
    ByteWriter out;
    const auto count = static_cast<std::uint16_t>(elements.size());
    out.write<std::uint16_t>(count).write<std::uint16_t>(count).write<std::uint16_t>(2);
    for (const std::uint16_t element : elements) {
        out.write<std::uint16_t>(element);
    }
    return out.take();
}

std::vector<std::uint16_t> segmentsFor(const Shape& shape) {
    std::vector<std::uint16_t> segments{segment::Move << segment::shift};
    const std::vector<Node>& nodes = shape.nodes;
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        const bool isCurve = i + 2 < nodes.size() && nodes[i].curve && nodes[i + 1].curve && !nodes[i + 2].curve;
        segments.push_back(static_cast<std::uint16_t>((isCurve ? segment::Curve << segment::shift : 0) | 1));
        i += isCurve ? 2 : 0;
    }
    if (shape.closed) {
        segments.push_back(static_cast<std::uint16_t>((segment::Close << segment::shift) | 1));
    }
    segments.push_back(static_cast<std::uint16_t>(segment::End << segment::shift));
    return segments;
}

} // namespace

Corners readCorners(const Looks& looks, const Frame& frame) {
    const Property* const vertices = looks.own(property::vertices);
    if (vertices == nullptr || vertices->bytes.empty()) {
        return {};
    }
    const std::vector<Point> points = pointsOf(*vertices);
    const auto isFormula = [](std::int32_t number) {
        return (static_cast<std::uint32_t>(number) & 0xFFFF0000U) == formula;
    };
    const bool followFormulas = std::any_of(
        points.begin(), points.end(), [&](const Point& point) { return isFormula(point.x) || isFormula(point.y); });
    if (followFormulas) {
        return {};
    }
    CornerReader out(looks, frame);
    const std::vector<std::uint16_t> segments = segmentsOf(looks.own(property::segments));
    if (segments.empty()) {
        followPlainly(out, points, looks.number(property::pathKind, path::ClosedLines));
    } else {
        follow(out, points, segments);
    }
    return out.take();
}

void writeCorners(PropertyTable& properties, const Shape& shape) {
    const Frame& frame = shape.frame();
    const auto unit = [](double points) { return nearest(points * masterUnitsPerPoint); };
    ByteWriter points;
    const auto count = static_cast<std::uint16_t>(shape.nodes.size());
    points.write<std::uint16_t>(count).write<std::uint16_t>(count).write<std::uint16_t>(8);
    for (const Node& node : shape.nodes) {
        points.write<std::int32_t>(unit(double{node.x} - double{frame.left}));
        points.write<std::int32_t>(unit(double{node.y} - double{frame.top}));
    }
    properties.set(property::geometryLeft, 0);
    properties.set(property::geometryTop, 0);
    properties.set(property::geometryRight, static_cast<std::uint32_t>(unit(frame.width)));
    properties.set(property::geometryBottom, static_cast<std::uint32_t>(unit(frame.height)));
    properties.set(property::pathKind, path::Complex);
    properties.setBytes(property::vertices, points.take());
    properties.setBytes(property::segments, arrayOf(segmentsFor(shape)));
}

bool isOfPath(std::uint16_t id) noexcept {
    return id >= property::geometryLeft && id <= property::segments;
}

} // namespace simulator::drawing
