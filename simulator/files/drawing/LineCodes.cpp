#include "simulator/files/drawing/LineCodes.h"

#include "simulator/files/bytes/Tables.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/FillCodes.h"
#include "simulator/files/drawing/PropertyIds.h"

#include <array>

namespace simulator::drawing {

namespace {

/// By dash style, from 1: solid, square dot, round dot, dash, dash-dot, dash-dot-dot, long dash, long dash-dot.
constexpr std::array<std::uint32_t, 8> dashes{0, 1, 2, 6, 8, 4, 7, 9};

/// By line style, from 1: single, two thin ones, thin and thick, thick and thin, a thick one between thin ones.
constexpr std::array<std::uint32_t, 5> styles{0, 1, 3, 2, 4};
/// By style of an arrowhead, from 1: none, triangle, open, stealth, diamond, oval.
constexpr std::array<std::uint32_t, 6> arrows{0, 1, 5, 2, 3, 4};
constexpr std::array<std::uint32_t, 3> sizes{0, 1, 2};
constexpr std::uint32_t patterned = 1;

/// Where an end of a line stands among the properties.
struct ArrowIds {
    std::uint16_t style;
    std::uint16_t length;
    std::uint16_t width;
};
constexpr ArrowIds beginIds{property::lineBeginArrow, property::lineBeginArrowLength, property::lineBeginArrowWidth};
constexpr ArrowIds endIds{property::lineEndArrow, property::lineEndArrowLength, property::lineEndArrowWidth};

/// The place from 1 of a code in a table; `usual` where there is none.
template <typename Table>
std::int32_t read(const Looks& looks, std::uint16_t id, const Table& table, std::int32_t usual) {
    const auto at = static_cast<std::size_t>(usual) - 1;
    return static_cast<std::int32_t>(files::placeIn(table, looks.number(id, table.at(at))).value_or(at)) + 1;
}

/// Says what is not as usual.
template <typename Table>
void write(PropertyTable& properties, std::uint16_t id, const Table& table, std::int32_t value, std::int32_t usual) {
    if (value != usual && value >= 1 && value <= static_cast<std::int32_t>(table.size())) {
        properties.set(id, table.at(static_cast<std::size_t>(value) - 1));
    }
}

ArrowHead readArrow(const Looks& looks, const ArrowIds& ids) {
    const ArrowHead usual;
    return {read(looks, ids.style, arrows, usual.style), read(looks, ids.length, sizes, usual.length),
            read(looks, ids.width, sizes, usual.width)};
}

void writeArrow(PropertyTable& properties, const ArrowIds& ids, const ArrowHead& arrow) {
    const ArrowHead usual;
    write(properties, ids.style, arrows, arrow.style, usual.style);
    write(properties, ids.length, sizes, arrow.length, usual.length);
    write(properties, ids.width, sizes, arrow.width, usual.width);
}

} // namespace

Line readLine(const Looks& looks) {
    Line line;
    line.visible = looks.flag(property::lineFlags, flag::lined, true);
    line.weight = looks.points(property::lineWidth, line.weight);
    line.color = colorOf(looks.number(property::lineColor, 0), line.color);
    line.back = colorOf(looks.number(property::lineBackColor, codeOf(line.back)), line.back);
    const auto dash = files::placeIn(dashes, looks.number(property::lineDashing, dashes[0])).value_or(0);
    line.dashStyle = static_cast<std::int32_t>(dash) + 1;
    line.style = read(looks, property::lineStyle, styles, line.style);
    line.transparency = 1 - looks.fixed(property::lineOpacity, 1);
    if (looks.number(property::lineType, 0) == patterned) {
        line.pattern = patternNamed(looks.text(property::linePictureName));
    }
    line.begin = readArrow(looks, beginIds);
    line.end = readArrow(looks, endIds);
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
    write(properties, property::lineStyle, styles, line.style, Line().style);
    if (line.transparency != 0) {
        properties.set(property::lineOpacity, code((1 - double{line.transparency}) * fixedPoint));
    }
    if (line.pattern >= 1) {
        properties.set(property::lineType, patterned);
        properties.setText(property::linePictureName, nameOfPattern(line.pattern));
    }
    writeArrow(properties, beginIds, line.begin);
    writeArrow(properties, endIds, line.end);
    properties.set(property::lineDashing, dashes.at(isKnown ? static_cast<std::size_t>(line.dashStyle) - 1 : 0));
}

} // namespace simulator::drawing
