#pragma once

#include "host/language/Expectation.h"

#include <nlohmann/json.hpp>

namespace host {

/// A verdict as the page tells it: what the host reads, what it means, why it is read, and which shapes have decided.
///
///     {"passed": false, "letter": "B", "reads": "the letter \"B\"", "meaning": "the width of ZOR4 is not 2 cm",
///      "reason": "Slide 1, shape 4 (ZOR4): Width is 60.", "shapes": [{"slide": 1, "shape": 4}]}
[[nodiscard]] nlohmann::json verdictOf(const Reading& reading);

} // namespace host
