#pragma once

#include "simulator/process/Selection.h"

namespace simulator {

/// A window on a presentation, inside PowerPoint's main window.
struct DocumentWindow {
    static constexpr std::int32_t normalView = 9;
    static constexpr std::int32_t slideView = 1;
    static constexpr std::int32_t slideSorterView = 7;

    std::weak_ptr<Presentation> presentation;
    std::int32_t viewType = normalView;
    std::weak_ptr<Slide> slide;  ///< the slide shown; gone when the presentation has none
    std::int32_t activePane = 2; ///< of normal view: 1 outline, 2 slide, 3 notes
    Selection selection;
};

using DocumentWindowPtr = std::shared_ptr<DocumentWindow>;

} // namespace simulator
