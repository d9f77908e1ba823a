#pragma once

#include "simulator/document/TextFormat.h"

namespace simulator {

/// How far a character moves the pen, in points: what it is in Arial, and about what it is in other fonts.
[[nodiscard]] float advanceOf(char16_t character, const CharacterFormat& format) noexcept;

} // namespace simulator
