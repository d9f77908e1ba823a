#include "simulator/files/text/Numbering.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/records/RecordTypes.h"

namespace simulator::text {

namespace {

constexpr std::uint32_t bulletPicture = 0x800000;
constexpr std::uint32_t numberingScheme = 0x1000000;
constexpr std::uint32_t hasNumbering = 0x2000000;
constexpr std::uint32_t runExtension = 0x100000;
constexpr std::uint32_t languageExtension = 0x20;
constexpr std::uint32_t writingDirection = 0x40;
constexpr std::uint32_t arabicPeriod = 3;

bool readParagraphPart(files::ByteReader& in) {
    const auto mask = in.read<std::uint32_t>();
    if ((mask & bulletPicture) != 0) {
        in.skip(2);
    }
    const bool isNumbered = (mask & hasNumbering) != 0 && in.read<std::uint16_t>() != 0;
    if ((mask & numberingScheme) != 0) {
        in.skip(4);
    }
    return isNumbered;
}

void skipRest(files::ByteReader& in) {
    if ((in.read<std::uint32_t>() & runExtension) != 0) {
        in.skip(4);
    }
    const auto special = in.read<std::uint32_t>();
    for (std::uint32_t bit = 1; bit <= 4; bit <<= 1U) {
        in.skip((special & bit) != 0 ? 2 : 0);
    }
    in.skip((special & languageExtension) != 0 ? 4 : 0);
    in.skip((special & writingDirection) != 0 ? 2 : 0);
}

} // namespace

Numbering readNumbering(std::string_view data) {
    Numbering formats;
    files::ByteReader in(data, "the numbering of a text");
    asFarAsSound([&] {
        while (in.left() != 0) {
            formats.push_back(readParagraphPart(in));
            skipRest(in);
        }
    });
    return formats;
}

records::Record numberingRecord() {
    files::ByteWriter out;
    out.fill(std::size_t{3} * 4);
    out.write<std::uint32_t>(hasNumbering | numberingScheme).write<std::uint16_t>(1);
    out.write<std::uint16_t>(arabicPeriod).write<std::uint16_t>(1).fill(std::size_t{2} * 4);
    return records::Record::atom(records::type::StyleTextProp9Atom, out.take());
}

} // namespace simulator::text
