#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/FreeformCodes.h"
#include "simulator/files/drawing/PropertyIds.h"

#include <gtest/gtest.h>

#include <sstream>

namespace simulator::drawing::freeform_tests {

using Numbers = std::vector<std::int32_t>;

/// What an array says of the size of its elements: segments, points of two numbers of 32 bits, of 16 bits.
constexpr std::uint16_t segmentSize = 2;
constexpr std::uint16_t pointSize = 8;
constexpr std::uint16_t packedSize = 0xFFF0;

std::string arrayOf(const Numbers& numbers, std::uint16_t elementSize) {
    files::ByteWriter out;
    const auto count = static_cast<std::uint16_t>(numbers.size() / (elementSize == segmentSize ? 1 : 2));
    out.write<std::uint16_t>(count).write<std::uint16_t>(count).write<std::uint16_t>(elementSize);
    for (const std::int32_t number : numbers) {
        if (elementSize != pointSize) {
            out.write<std::uint16_t>(static_cast<std::uint16_t>(number));
        } else {
            out.write<std::int32_t>(number);
        }
    }
    return out.take();
}

/// A path that other programs write, and its corners: "c" before those that control a curve, "Z" where it is closed.
struct Path {
    Numbers points; ///< x and y, of an area that begins at 100, 200 and is 200 wide and 400 high
    std::uint32_t kind;
    Numbers segments;
    std::string corners; ///< in a frame of 100 by 200 points at 10, 20
};

TEST(Freeform, FollowsThePathsOfOtherPrograms) {
    const Numbers four{100, 200, 300, 200, 300, 600, 200, 400};
    constexpr std::int32_t formula = -0x7FFFFFFF;
    const std::vector<Path> paths{
        {four, 0, {}, "10,20 110,20 110,220 60,120 "},
        {four, 1, {}, "10,20 110,20 110,220 60,120 Z"},
        {four, 2, {}, "10,20 c110,20 c110,220 60,120 "},
        {four, 3, {}, "10,20 c110,20 c110,220 60,120 Z"},
        {four, 4, {0x4000, 0x0003, 0x8000}, "10,20 110,20 110,220 60,120 "},
        {four, 4, {0x4000, 0x0001, 0x0001, 0x0000, 0x6001, 0x8000}, "10,20 110,20 110,220 60,120 Z"},
        {four, 4, {0x4000, 0x2001, 0xA000, 0x6000}, "10,20 c110,20 c110,220 60,120 Z"},
        {four, 4, {0x4000, 0x2002}, "10,20 c110,20 c110,220 60,120 "},
        {four, 4, {0x4000, 0x0009}, "10,20 110,20 110,220 60,120 "},
        {{100, 200, 300, 200, 100, 200}, 0, {}, "10,20 110,20 10,20 Z"},
        {{100, 200, 100, 200}, 0, {}, "10,20 10,20 "},
        {{100, 200, 300, formula, 300, 600}, 0, {}, ""},
        {{formula, 200, 300, 200, 300, 600}, 0, {}, ""},
        {{}, 0, {}, ""},
    };
    for (std::size_t row = 0; row < 2 * paths.size(); ++row) {
        const Path& path = paths[row / 2];
        const bool hasFormula = path.corners.empty();
        PropertyTable table;
        table.set(property::geometryLeft, 100);
        table.set(property::geometryTop, 200);
        table.set(property::geometryRight, 300);
        table.set(property::geometryBottom, 600);
        table.set(property::pathKind, path.kind);
        table.setBytes(property::vertices, arrayOf(path.points, row % 2 == 0 || hasFormula ? pointSize : packedSize));
        if (!path.segments.empty()) {
            table.setBytes(property::segments, arrayOf(path.segments, segmentSize));
        }
        const Corners seen = readCorners(Looks({&table}), {10, 20, 100, 200});
        std::ostringstream corners;
        for (const Node& node : seen.nodes) {
            corners << (node.curve ? "c" : "") << node.x << ',' << node.y << ' ';
        }
        EXPECT_EQ(corners.str() + (seen.isClosed ? "Z" : ""), path.corners) << "row " << row / 2;
    }
    PropertyTable plain; // of the usual extent
    plain.setBytes(property::vertices, arrayOf({21600, 10800, 0, 0}, pointSize));
    EXPECT_EQ(readCorners(Looks({&plain}), {10, 20, 100, 200}).nodes.front(), (Node{110, 120}));
}

} // namespace simulator::drawing::freeform_tests
