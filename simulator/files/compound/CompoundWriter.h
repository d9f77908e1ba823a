#pragma once

#include "simulator/files/compound/Storage.h"

namespace simulator::compound {

/// The bytes of a compound file with sectors of 512 bytes; the same storage gives the same bytes.
[[nodiscard]] std::string write(const Storage& root);

} // namespace simulator::compound
