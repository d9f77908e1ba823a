#include "simulator/files/drawing/LineCodes.h"

#include "simulator/files/bytes/Tables.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/PropertyIds.h"

#include <array>

namespace simulator::drawing {

namespace {

/// By dash style, from 1: solid, square dot, round dot, dash, dash-dot, dash-dot-dot, long dash, long dash-dot.
constexpr std::array<std::uint32_t, 8> dashes{0, 1, 2, 6, 8, 4, 7, 9};

} // namespace

Line readLine(const Looks& looks) {
    Line line;
    line.visible = looks.flag(property::lineFlags, flag::lined, true);
    line.weight = looks.points(property::lineWidth, line.weight);
    line.color = colorOf(looks.number(property::lineColor, 0), line.color);
    line.back = colorOf(looks.number(property::lineBackColor, codeOf(line.back)), line.back);
    const auto dash = files::placeIn(dashes, looks.number(property::lineDashing, dashes[0])).value_or(0);
    line.dashStyle = static_cast<std::int32_t>(dash) + 1;
    return line;
}

void writeLine(PropertyTable& properties, const Line& line) {
    const bool isKnown = line.dashStyle >= 1 && line.dashStyle <= static_cast<std::int32_t>(dashes.size());
    properties.setFlag(property::lineFlags, flag::lined, line.visible);
    properties.set(property::lineColor, codeOf(line.color));
    if (line.back != Line().back) {
        properties.set(property::lineBackColor, codeOf(line.back));
    }
    properties.set(property::lineWidth, emu(line.weight));
    properties.set(property::lineDashing, dashes.at(isKnown ? static_cast<std::size_t>(line.dashStyle) - 1 : 0));
}

} // namespace simulator::drawing
