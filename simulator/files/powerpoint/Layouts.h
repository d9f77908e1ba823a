#pragma once

#include "simulator/document/Constants.h"

#include <cstdint>
#include <string>

namespace simulator::powerpoint {

/// The layout of a slide, from the number in its record.
[[nodiscard]] PpSlideLayout layoutOf(std::int32_t geometry) noexcept;
/// A layout's number and the placeholders that it has, as they stand at the front of a slide's record; for one that has
/// no number of its own, those of a blank slide.
[[nodiscard]] std::string layoutBytes(PpSlideLayout layout);

} // namespace simulator::powerpoint
