#pragma once

#include "host/world/World.h"

#include <nlohmann/json.hpp>

namespace host {

/// What PowerPoint shows at this moment: its windows' state, the slides as pictures and their shapes. What cannot be
/// read is left out: PowerPoint is gone, busy or hidden, or has nothing open.
///
///     {"running": true, "visible": true, "dialogs": 0, "presentations": ["Méthodologie.ppt"], "presentation": "C:\…",
///      "width": 720, "height": 540, "snapToGrid": true, "view": 9, "pane": 1, "slide": 1,
///      "selection": {"kind": 2, "slides": [], "shapes": [257], "start": 1, "length": 0},
///      "slides": [{"index": 1, "mark": "ZOR1", "layout": 12, "picture": "<svg…", "shapes": [{
///          "path": [3], "id": 257, "name": "Oval 3", "mark": "ZOR3", "type": 1, "autoShape": 9, "visible": true,
///          "left": 100, "top": 200, "width": 80, "height": 80, "rotation": 0, "locked": false,
///          "fill": 8421504, "text": {…}, "items": […]}]}]}
///
/// Places and sizes are in points, "path" is the way to the shape: its place on the slide, then in groups.
[[nodiscard]] nlohmann::json screenOf(World& world);

} // namespace host
