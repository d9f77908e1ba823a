#include "simulator/files/text/TextException.h"

namespace simulator::text {

namespace {

std::string readTabs(files::ByteReader& in) {
    files::ByteWriter tabs;
    const auto count = in.read<std::uint16_t>();
    tabs.write<std::uint16_t>(count).append(in.take(std::size_t{count} * 4));
    return tabs.take();
}

} // namespace

TextException TextException::read(files::ByteReader& in, std::span<const Field> fields) {
    TextException exception;
    exception.mask = in.read<std::uint32_t>();
    for (std::size_t place = 0; place < fields.size(); ++place) {
        const Field& field = fields[place];
        if (!exception.has(field)) {
            continue;
        }
        if (field.bytes == 0) {
            exception.tabs = readTabs(in);
        } else {
            exception.values.at(place) = field.bytes == 4 ? in.read<std::uint32_t>() : in.read<std::uint16_t>();
        }
    }
    return exception;
}

void TextException::write(files::ByteWriter& out, std::span<const Field> fields) const {
    out.write<std::uint32_t>(mask);
    for (std::size_t place = 0; place < fields.size(); ++place) {
        const Field& field = fields[place];
        if (!has(field)) {
            continue;
        }
        if (field.bytes == 0) {
            out.append(tabs);
        } else if (field.bytes == 4) {
            out.write<std::uint32_t>(values.at(place));
        } else {
            out.write<std::uint16_t>(static_cast<std::uint16_t>(values.at(place)));
        }
    }
}

} // namespace simulator::text
