#pragma once

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/records/Record.h"

namespace simulator::records {

/// A record is not what the format says it is; the message names the stream and the offset in it.
class DamagedRecord final : public DamagedPresentation {
public:
    DamagedRecord(std::size_t offset, const std::string& what)
        : DamagedPresentation("PowerPoint Document, offset " + files::hex(offset) + ": " + what) {}
};

/// Reads something from a record: what is wrong with it is told with the record's place, unless a record within has
/// told its own.
template <typename Read> decltype(auto) within(const Record& record, const Read& read) {
    try {
        return read();
    } catch (const DamagedRecord&) {
        throw;
    } catch (const DamagedPresentation& damage) {
        throw DamagedRecord(record.offset, damage.what());
    }
}

} // namespace simulator::records
