#pragma once

#include "simulator/document/Constants.h"
#include "simulator/files/bytes/Bytes.h"

#include <string>

namespace simulator::powerpoint {

/// The layout of a slide, as it stands at the front of its record: a number, and the placeholders that it has.
[[nodiscard]] PpSlideLayout readLayout(files::ByteReader& in);
/// The same in bytes; for a number that is not known, those of a blank slide.
[[nodiscard]] std::string layoutBytes(PpSlideLayout number);

} // namespace simulator::powerpoint
