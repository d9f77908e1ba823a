#include "simulator/files/drawing/TableCodes.h"

#include "simulator/document/TableGrid.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/PropertyIds.h"

namespace simulator::drawing {

namespace {

constexpr std::size_t heightSize = 4;

} // namespace

std::optional<Table> readTable(const PropertyTable& properties, const std::vector<ShapePtr>& items) {
    const Property* const flags = properties.find(property::tableFlags);
    if (flags == nullptr || (flags->value & flag::table) == 0) {
        return std::nullopt;
    }
    Table table;
    table.isRightToLeft = (flags->value & flag::rightToLeftTable) != 0;
    if (const Property* const heights = properties.find(property::rowHeights)) {
        asFarAsSound([&] {
            files::ByteReader in(heights->bytes, "the heights of a table's rows");
            const ArrayHead head(in);
            while (head.elementSize == heightSize && in.left() >= heightSize) {
                table.leastHeights.push_back(static_cast<float>(in.read<std::int32_t>()) / masterUnitsPerPoint);
            }
        });
    }
    const TableGrid grid(items, table);
    return grid.isWhole() ? std::optional(grid.table()) : std::nullopt;
}

PropertyTable writeTable(const Table& table) {
    const auto rows = static_cast<std::uint16_t>(table.leastHeights.size());
    files::ByteWriter out;
    out.write<std::uint16_t>(rows).write<std::uint16_t>(rows).write<std::uint16_t>(heightSize);
    for (const float height : table.leastHeights) {
        out.write<std::int32_t>(nearest(double{height} * masterUnitsPerPoint));
    }
    PropertyTable properties;
    properties.set(property::tableFlags, flag::table | (table.isRightToLeft ? flag::rightToLeftTable : 0U));
    properties.setBytes(property::rowHeights, out.take());
    return properties;
}

} // namespace simulator::drawing
