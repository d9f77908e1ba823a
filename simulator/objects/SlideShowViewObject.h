#pragma once

#include "simulator/objects/SlideShowWindowObject.h"

#include <optional>

namespace simulator {

class SlideObject;

/// SlideShowView: what a slide show shows. Slides are named by their places from 1 in the presentation.
class SlideShowViewObject final : public OfSlideShow {
public:
    using OfSlideShow::OfSlideShow;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] automation::ObjectPtr owner() const override;
    /// Raises an invalid request where no slide is shown, since it was deleted.
    [[nodiscard]] std::shared_ptr<SlideObject> slide() const;
    /// Raises an invalid request where none was shown before.
    [[nodiscard]] std::shared_ptr<SlideObject> lastSlideViewed() const;
    /// Place of the slide from 1 among those of the show.
    [[nodiscard]] std::int32_t currentShowPosition() const { return window()->position(); }
    [[nodiscard]] PpSlideShowState state() const { return window()->state; }
    /// Raises an invalid request outside 1 to 5; a show that is done is over.
    void setState(PpSlideShowState state) const;
    [[nodiscard]] std::int32_t pointerType() const { return window()->pointerType; }
    /// Takes 0 to 5; raises an invalid request for any other.
    void setPointerType(std::int32_t type) const;
    [[nodiscard]] MsoTriState acceleratorsEnabled() const;
    void setAcceleratorsEnabled(MsoTriState enabled) const;
    [[nodiscard]] std::int32_t advanceMode() const;

    /// Shows a slide, be it hidden or none of the show's. Raises out of range.
    void gotoSlide(std::int32_t index, std::optional<MsoTriState> resetSlide) const;
    /// Behind the last slide the show is over, or begins again where it repeats.
    void next() const { window()->next(); }
    void previous() const { window()->previous(); }
    void first() const { window()->first(); }
    void last() const { window()->last(); }
    void exit() const { window()->end(); }
};

} // namespace simulator
