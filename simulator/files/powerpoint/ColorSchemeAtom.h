#pragma once

#include "simulator/document/Color.h"
#include "simulator/files/records/Record.h"

namespace simulator::powerpoint {

/// The eight colours of a scheme as the data of a record.
[[nodiscard]] std::string colorBytes(const ColorScheme& scheme);
/// Raises DamagedPresentation where there are fewer.
[[nodiscard]] ColorScheme readColors(const records::Record& atom);

} // namespace simulator::powerpoint
