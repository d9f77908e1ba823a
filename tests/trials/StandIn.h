#pragma once

#include "automation/LateBound.h"

namespace trials {

/// The controls of the stand-in of PowerPoint that runs on this desktop, late-bound. Raises CannotCreateObject (429)
/// where none runs.
[[nodiscard]] automation::LateBound standIn();

/// What the stand-in has counted so far: `Calls` or `LookUps`.
[[nodiscard]] inline std::size_t countOfStandIn(std::u16string_view counter) {
    return static_cast<std::size_t>(standIn().get(counter).to<std::int32_t>());
}

} // namespace trials
