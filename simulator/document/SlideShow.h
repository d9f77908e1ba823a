#pragma once

#include <cstdint>

/// How slides are shown to an audience.
namespace simulator {

/// How a slide comes, and when the next one does.
struct Transition {
    std::int32_t effect = 0; ///< PpEntryEffect; 0 for none
    std::int32_t speed = 3;  ///< PpTransitionSpeed: slow, medium, fast from 1
    bool advancesOnClick = true;
    bool advancesOnTime = false;
    float advanceTime = 0; ///< seconds
    bool isHidden = false; ///< the show passes the slide over

    friend bool operator==(const Transition&, const Transition&) = default;
};

/// How a presentation is shown.
struct SlideShowSetup {
    std::int32_t rangeType = 1; ///< PpSlideShowRangeType: all, some from one to another, those of a named show
    std::int32_t startingSlide = 1;
    std::int32_t endingSlide = 0; ///< 0 for the last
    std::int32_t showType = 1;    ///< PpSlideShowType: speaker, window, kiosk
    std::int32_t advanceMode = 2; ///< PpSlideShowAdvanceMode: by hand, by the slides' times, rehearsing
    bool loopsUntilStopped = false;
    bool hasAnimation = true;
    bool hasNarration = true;

    friend bool operator==(const SlideShowSetup&, const SlideShowSetup&) = default;
};

} // namespace simulator
