#pragma once

#include "simulator/files/compound/Storage.h"

namespace simulator::compound {

/// What a compound file holds. Raises DamagedPresentation, which says what is wrong and in which sector or entry: every
/// chain is followed once at most, no sector belongs to two of them, and nothing reaches past the end.
[[nodiscard]] Storage read(std::string_view file);

} // namespace simulator::compound
