#pragma once

#include "simulator/document/Presentation.h"

namespace simulator {

/// PpSlideShowState.
enum PpSlideShowState : std::int32_t {
    ppSlideShowRunning = 1,
    ppSlideShowPaused = 2,
    ppSlideShowBlackScreen = 3,
    ppSlideShowWhiteScreen = 4,
    ppSlideShowDone = 5,
};

/// A window in which the slides of a presentation are shown to an audience, one after the other.
class SlideShowWindow {
public:
    /// Shows the first slide that the presentation's setup leaves to show.
    explicit SlideShowWindow(const PresentationPtr& presentation);

    std::weak_ptr<Presentation> presentation;
    PpSlideShowState state = ppSlideShowRunning;
    Frame frame;                  ///< points on the screen
    std::int32_t pointerType = 4; ///< PpSlideShowPointerType: an arrow that hides by itself
    bool acceleratorsEnabled = true;

    /// True once the show has been ended, or its presentation is closed.
    [[nodiscard]] bool isOver() const noexcept { return isOver_ || presentation.expired(); }
    void end() noexcept { isOver_ = true; }

    /// The slide shown; null behind the last one.
    [[nodiscard]] SlidePtr shown() const noexcept { return slide_.lock(); }
    /// The slide shown before; null where there is none.
    [[nodiscard]] SlidePtr shownBefore() const noexcept { return before_.lock(); }
    /// Place of the slide among those of the show, from 1; 0 where there is none.
    [[nodiscard]] std::int32_t position() const;
    void show(const SlidePtr& slide);
    /// Shows the slide that comes next. Behind the last one a show that repeats begins again, any other is over.
    void next();
    /// The one before; the first stays.
    void previous();
    void first();
    void last();

    /// The slides of the show, without those that are hidden.
    [[nodiscard]] std::vector<SlidePtr> slides() const;

private:
    /// Place of the slide shown among all of the presentation, from 0; where it stood when it is gone.
    [[nodiscard]] std::size_t placeInAll() const;

    std::weak_ptr<Slide> slide_;
    std::size_t place_ = 0;
    std::weak_ptr<Slide> before_;
    bool isOver_ = false;
};

using SlideShowWindowPtr = std::shared_ptr<SlideShowWindow>;

} // namespace simulator
