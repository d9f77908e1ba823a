#pragma once

#include "simulator/objects/ColorFormatObject.h"
#include "simulator/objects/NodeSet.h"

namespace simulator {

/// The ColorFormat of one colour of some shapes: it reads that of the first and writes that of all.
[[nodiscard]] std::shared_ptr<ColorFormatObject> colorOf(const SessionPtr& session, const ShapeSet& shapes,
                                                         Color& (*part)(Shape&));

} // namespace simulator
