#pragma once

#include "simulator/files/records/Record.h"

#include <optional>

namespace simulator::powerpoint {

/// The distance of a document's grid, in points, from the extension that PowerPoint 2002 has added to its settings;
/// nothing where it says none.
[[nodiscard]] std::optional<float> readGridSpacing(const records::Record& settings);
void writeGridSpacing(records::Record& settings, float points);

} // namespace simulator::powerpoint
