#include "simulator/files/records/Record.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/records/Damage.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>

namespace simulator::records {

namespace {

template <typename Children, typename Match> auto* firstOf(Children& children, const Match& match) noexcept {
    const auto found = std::find_if(children.begin(), children.end(), match);
    return found == children.end() ? nullptr : &*found;
}

std::size_t lengthOf(const Record& record) noexcept {
    std::size_t length = record.data.size() + record.tail.size();
    for (const Record& child : record.children) {
        length += headerSize + lengthOf(child);
    }
    return length;
}

void appendHeader(std::string& out, const Record& record) {
    files::ByteWriter header;
    header.write<std::uint16_t>(static_cast<std::uint16_t>(record.version | (record.instance << 4U)));
    header.write<std::uint16_t>(record.type).write<std::uint32_t>(static_cast<std::uint32_t>(lengthOf(record)));
    out += header.bytes();
}

} // namespace

const Record* Record::find(std::uint16_t wanted) const noexcept {
    return firstOf(children, [wanted](const Record& child) { return child.is(wanted); });
}

const Record* Record::find(std::uint16_t wanted, std::uint16_t ofInstance) const noexcept {
    return firstOf(children, [=](const Record& child) { return child.is(wanted, ofInstance); });
}

Record* Record::find(std::uint16_t wanted) noexcept {
    return firstOf(children, [wanted](const Record& child) { return child.is(wanted); });
}

Record* Record::find(std::uint16_t wanted, std::uint16_t ofInstance) noexcept {
    return firstOf(children, [=](const Record& child) { return child.is(wanted, ofInstance); });
}

const Record& Record::demand(std::uint16_t wanted) const {
    const Record* const found = find(wanted);
    if (found == nullptr) {
        throw DamagedRecord(offset, "record " + files::hex(type) + " holds no record " + files::hex(wanted));
    }
    return *found;
}

void append(std::string& out, const Record& record) {
    appendHeader(out, record);
    out += record.data;
    for (const Record& child : record.children) {
        append(out, child);
    }
    out += record.tail;
}

std::string bytesOf(const Record& record) {
    std::string out;
    append(out, record);
    return out;
}

} // namespace simulator::records
