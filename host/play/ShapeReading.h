#pragma once

#include "automation/LateBound.h"

#include <nlohmann/json.hpp>

namespace host {

/// The shapes of a collection as Screen.h has them, those in groups within their groups. Raises what PowerPoint raises.
[[nodiscard]] nlohmann::json shapesIn(const automation::LateBound& shapes);

/// The mark that the module has given a slide or a shape, "ZOR3"; empty where there is none.
[[nodiscard]] std::string markIn(const automation::LateBound& marked);

} // namespace host
