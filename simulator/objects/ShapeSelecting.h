#pragma once

#include "simulator/process/Process.h"

namespace simulator {

/// Selects shapes of one slide in the window that shows it, in place of what was selected or beside it. Raises an
/// invalid request where no window shows the slide in a view in which shapes can be selected.
void selectShapes(const Process& process, const std::vector<ShapePtr>& shapes, bool replace);

} // namespace simulator
