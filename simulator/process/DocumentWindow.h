#pragma once

#include "simulator/process/Selection.h"

namespace simulator {

/// A window on a presentation, inside PowerPoint's main window.
struct DocumentWindow {
    static constexpr std::int32_t normalView = 9;
    static constexpr std::int32_t slideView = 1;
    static constexpr std::int32_t notesPageView = 3;
    static constexpr std::int32_t thumbnailsView = 11;
    static constexpr std::int32_t slideSorterView = 7;
    static constexpr std::int32_t outlinePane = 1;
    static constexpr std::int32_t slidePane = 2;
    static constexpr std::int32_t notesPane = 3;

    std::weak_ptr<Presentation> presentation;
    std::int32_t viewType = normalView;
    PpWindowState state = ppWindowMaximized;
    Frame frame{0, 0, 720, 480};         ///< where it stands when it is not maximized
    std::int32_t zoom = 66;              ///< per cent
    std::weak_ptr<Slide> slide;          ///< the slide shown last; it may be gone
    std::int32_t activePane = slidePane; ///< of normal view
    Selection selection;

    /// The slide shown: the one that took the place of the last one where that is gone; null where the presentation has
    /// no slide.
    [[nodiscard]] SlidePtr shown();
    /// Shows a slide; what was selected on another one is selected no longer.
    void show(const SlidePtr& other);

private:
    std::size_t place_ = 0;
};

using DocumentWindowPtr = std::shared_ptr<DocumentWindow>;

} // namespace simulator
