#pragma once

#include "simulator/files/records/Record.h"

namespace simulator::records {

/// The record at an offset of a stream, with all that it contains. Raises DamagedPresentation, which names the record
/// and its offset, where it reaches past the end. Inside it, what cannot be read as a record is kept as it is.
[[nodiscard]] Record readRecord(std::string_view stream, std::size_t offset);

/// Length of the record at an offset of a stream, with its header. Raises DamagedPresentation where it reaches past the
/// end.
[[nodiscard]] std::size_t sizeOfRecord(std::string_view stream, std::size_t offset);

} // namespace simulator::records
