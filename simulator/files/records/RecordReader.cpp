#include "simulator/files/records/RecordReader.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/records/Damage.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>
#include <array>
#include <optional>

namespace simulator::records {

namespace {

using files::hex;

constexpr int deepestRecord = 128;

/// Containers that are looked into. Where something in one cannot be a record, what stands before it holds.
constexpr std::array lookedInto{
    type::Document,      type::Slide,         type::Environment,      type::MainMaster,     type::SlideViewInfo,
    type::DrawingGroup,  type::Drawing,       type::DocInfoList,      type::FontCollection, type::SlideListWithText,
    type::ProgTags,      type::ProgStringTag, type::ProgBinaryTag,    type::ArtGroup,       type::ArtDrawing,
    type::ArtShapeGroup, type::ArtShape,      type::ArtClientTextbox, type::ArtClientData,
};

struct Header {
    std::uint16_t type = 0;
    std::uint16_t instance = 0;
    std::uint8_t version = 0;
    std::size_t length = 0;

    /// Begins the record that has this header and stands there.
    void begin(Record& record, std::size_t offset) const noexcept {
        record.type = type;
        record.instance = instance;
        record.version = version;
        record.offset = offset;
    }
};

Header readHeader(std::string_view bytes) {
    files::ByteReader in(bytes, "a record header");
    const auto first = in.read<std::uint16_t>();
    Header header;
    header.version = static_cast<std::uint8_t>(first & 0xFU);
    header.instance = static_cast<std::uint16_t>(first >> 4U);
    header.type = in.read<std::uint16_t>();
    header.length = in.read<std::uint32_t>();
    return header;
}

/// What is wrong with a record, and where it stands.
struct Fault {
    std::size_t offset;
    std::string what;
};

/// The header of the record at the front of `bytes`, or what is wrong with it.
std::optional<Fault> check(std::string_view bytes, std::size_t offset, Header& header) {
    if (bytes.size() < headerSize) {
        return Fault{offset, "only " + std::to_string(bytes.size()) + " bytes are left for the header of a record"};
    }
    header = readHeader(bytes);
    if (header.length > bytes.size() - headerSize) {
        return Fault{offset, "record " + hex(header.type) + " says " + std::to_string(header.length) + " bytes, " +
                                 std::to_string(bytes.size() - headerSize) + " are left"};
    }
    return std::nullopt;
}

/// How many records stand one behind the other, as their headers say.
std::size_t countIn(std::string_view body) {
    std::size_t count = 0;
    for (; body.size() >= headerSize; ++count) {
        const std::size_t length = readHeader(body).length;
        body.remove_prefix(headerSize + std::min(length, body.size() - headerSize));
    }
    return count;
}

std::optional<Fault> readInto(Record& record, std::string_view body, std::size_t offset, int depth) {
    if (record.version != Record::containerVersion) {
        record.data = body;
        return std::nullopt;
    }
    if (depth > deepestRecord) {
        return Fault{offset, "record " + hex(record.type) + " is nested too deeply"};
    }
    const bool isLookedInto = std::find(lookedInto.begin(), lookedInto.end(), record.type) != lookedInto.end();
    record.children.reserve(countIn(body));
    for (std::size_t place = 0; place < body.size();) {
        Header header;
        std::optional<Fault> fault = check(body.substr(place), offset + place, header);
        if (fault && isLookedInto) {
            record.tail = body.substr(place);
            return std::nullopt;
        }
        if (!fault) {
            Record& child = record.children.emplace_back();
            header.begin(child, offset + place);
            fault =
                readInto(child, body.substr(place + headerSize, header.length), offset + place + headerSize, depth + 1);
        }
        if (fault && isLookedInto) {
            return fault;
        }
        if (fault) {
            record.children.clear();
            record.data = body;
            return std::nullopt;
        }
        place += headerSize + header.length;
    }
    return std::nullopt;
}

[[noreturn]] void fail(const Fault& fault) {
    throw DamagedRecord(fault.offset, fault.what);
}

Header demandHeader(std::string_view stream, std::size_t offset) {
    if (offset >= stream.size()) {
        fail({offset, "the stream ends at " + hex(stream.size()) + ", before a record that is referred to"});
    }
    Header header;
    if (const auto fault = check(stream.substr(offset), offset, header)) {
        fail(*fault);
    }
    return header;
}

} // namespace

Record readRecord(std::string_view stream, std::size_t offset) {
    const Header header = demandHeader(stream, offset);
    const std::size_t start = offset + headerSize;
    Record record;
    header.begin(record, offset);
    if (const auto fault = readInto(record, stream.substr(start, header.length), start, 0)) {
        fail(*fault);
    }
    return record;
}

std::size_t sizeOfRecord(std::string_view stream, std::size_t offset) {
    return headerSize + demandHeader(stream, offset).length;
}

} // namespace simulator::records
