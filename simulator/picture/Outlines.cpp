#include "simulator/picture/Outlines.h"

#include "simulator/picture/Markup.h"
#include "simulator/picture/OutlineTable.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace simulator::picture {

namespace {

constexpr std::int32_t roundedRectangle = 5;
constexpr std::int32_t flowchartAlternateProcess = 62;
constexpr std::int32_t sun = 23;
/// Share of the shorter side that a round corner takes.
constexpr float roundness = 1.0F / 6;

std::string place(float x, float y) {
    return number(x) + ' ' + number(y);
}

/// Writes the rows of the table as paths on a frame.
class Stretched {
public:
    Stretched(std::string_view path, const Frame& frame) : rest_(path), frame_(frame) {}

    std::string path() {
        while (!rest_.empty()) {
            const char next = rest_.front();
            if (next == ' ') {
                rest_.remove_prefix(1);
            } else if ((next >= '0' && next <= '9') || next == '-') {
                addPlace();
            } else {
                rest_.remove_prefix(1);
                out_ += next;
                if (next == 'A') {
                    addArc();
                }
            }
        }
        return std::move(out_);
    }

private:
    float take() {
        std::size_t end = std::min(rest_.find_first_of("-0123456789"), rest_.size());
        rest_.remove_prefix(end);
        const bool isNegative = rest_.starts_with('-');
        float value = 0;
        end = isNegative ? 1 : 0;
        for (; end < rest_.size() && rest_[end] >= '0' && rest_[end] <= '9'; ++end) {
            value = value * 10 + static_cast<float>(rest_[end] - '0');
        }
        rest_.remove_prefix(end);
        return (isNegative ? -value : value) / 100;
    }
    void addPlace() {
        const float x = take();
        const float y = take();
        separate();
        out_ += place(frame_.left + x * frame_.width, frame_.top + y * frame_.height);
    }
    void addArc() {
        const float radiusX = take() * frame_.width;
        const float radiusY = take() * frame_.height;
        const bool isLarge = take() != 0;
        const bool isSwept = take() != 0;
        out_ += place(radiusX, radiusY) + (isLarge ? " 0 1 " : " 0 0 ") + (isSwept ? "1" : "0");
        addPlace();
    }
    void separate() {
        if (!out_.empty() && out_.back() >= '0' && out_.back() <= '9') {
            out_ += ' ';
        }
    }

    std::string_view rest_;
    const Frame& frame_;
    std::string out_;
};

std::string rounded(const Frame& frame) {
    const float radius = std::min(frame.width, frame.height) * roundness;
    const std::string arc = "A" + place(radius, radius) + " 0 0 1 ";
    const float right = frame.left + frame.width;
    const float bottom = frame.top + frame.height;
    return "M" + place(frame.left + radius, frame.top) + "L" + place(right - radius, frame.top) + arc +
           place(right, frame.top + radius) + "L" + place(right, bottom - radius) + arc +
           place(right - radius, bottom) + "L" + place(frame.left + radius, bottom) + arc +
           place(frame.left, bottom - radius) + "L" + place(frame.left, frame.top + radius) + arc +
           place(frame.left + radius, frame.top) + "Z";
}

/// A place on an ellipse around the middle of a frame, `share` of the frame wide; angles in whole turns from the top.
std::string onEllipse(const Frame& frame, float share, float turn) {
    const float angle = 2 * std::numbers::pi_v<float> * turn;
    return place(frame.left + frame.width / 2 * (1 + share * std::sin(angle)),
                 frame.top + frame.height / 2 * (1 - share * std::cos(angle)));
}

std::string star(const Frame& frame, int points, float inner) {
    std::string path;
    for (int corner = 0; corner < 2 * points; ++corner) {
        path += (corner == 0 ? "M" : " ") + onEllipse(frame, corner % 2 == 0 ? 1 : inner,
                                                      static_cast<float>(corner) / static_cast<float>(2 * points));
    }
    return path + "Z";
}

std::string sunOn(const Frame& frame) {
    constexpr int rays = 8;
    constexpr float halfRay = 0.045F;
    std::string path = Stretched("M25 50A25 25 0 1 75 50A25 25 0 1 25 50Z", frame).path();
    for (int ray = 0; ray < rays; ++ray) {
        const float turn = static_cast<float>(ray) / rays;
        path += "M" + onEllipse(frame, 1, turn) + " " + onEllipse(frame, 0.62F, turn + halfRay) + " " +
                onEllipse(frame, 0.62F, turn - halfRay) + "Z";
    }
    return path;
}

struct Star {
    std::int32_t autoShapeType;
    int points;
    float inner; ///< radius of the inner corners, as a share of the outer
};

constexpr auto stars = std::to_array<Star>({
    {91, 4, 0.28F},
    {92, 5, 0.38F},
    {93, 8, 0.76F},
    {94, 16, 0.75F},
    {95, 24, 0.75F},
    {96, 32, 0.75F},
});

Outline autoShapeOutline(std::int32_t kind, const Frame& frame) {
    if (kind == roundedRectangle || kind == flowchartAlternateProcess) {
        return {rounded(frame), {}};
    }
    if (kind == sun) {
        return {sunOn(frame), {}};
    }
    const auto* const found =
        std::find_if(stars.begin(), stars.end(), [kind](const Star& row) { return row.autoShapeType == kind; });
    if (found != stars.end()) {
        return {star(frame, found->points, found->inner), {}};
    }
    const OutlineRow* const row = findOutline(kind);
    if (row == nullptr) {
        return {Stretched(findOutline(msoShapeRectangle)->path, frame).path(), {}, false, false};
    }
    return {Stretched(row->path, frame).path(), Stretched(row->detail, frame).path(), row->isOpen};
}

Outline freeformOutline(const Shape& shape) {
    const std::vector<Node>& nodes = shape.nodes;
    const auto at = [&](std::size_t i) { return place(nodes.at(i).x, nodes.at(i).y); };
    std::string path = nodes.empty() ? std::string() : "M" + at(0);
    for (std::size_t i = 1; i < nodes.size();) {
        if (nodes[i].curve && i + 2 < nodes.size()) {
            path += "C" + at(i) + " " + at(i + 1) + " " + at(i + 2);
            i += 3;
        } else {
            path += "L" + at(i);
            ++i;
        }
    }
    return {path + (shape.closed ? "Z" : ""), {}, !shape.closed};
}

} // namespace

Outline connectorOutline(MsoConnectorType type, const Frame& frame) {
    const std::string_view way = type == msoConnectorElbow   ? "M0 0 50 0 50 100 100 100"
                                 : type == msoConnectorCurve ? "M0 0C50 0 50 100 100 100"
                                                             : "M0 0 100 100";
    return {Stretched(way, frame).path(), {}, true};
}

Outline outlineOf(const Shape& shape) {
    switch (shape.type) {
    case msoAutoShape:
        if (shape.connector) {
            return connectorOutline(shape.connector->type, shape.frame());
        }
        return autoShapeOutline(shape.autoShapeType, shape.frame());
    case msoFreeform: return freeformOutline(shape);
    case msoLine: return {Stretched("M0 0 100 100", shape.frame()).path(), {}, true};
    default: return {Stretched(findOutline(msoShapeRectangle)->path, shape.frame()).path(), {}};
    }
}

} // namespace simulator::picture
