#pragma once

#include "automation/Object.h"
#include "simulator/document/Shape.h"

namespace simulator {

/// The id of a shape that a caller hands over, whose object may come from another process; 0 where it does not stand on
/// the slide of `own`. Raises what it raises to be asked.
[[nodiscard]] std::int32_t idBeside(const Shape& own, const automation::ObjectPtr& handed);

} // namespace simulator
