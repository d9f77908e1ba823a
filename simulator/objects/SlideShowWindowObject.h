#pragma once

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

class PresentationObject;
class SlideShowViewObject;

/// What stands for a running slide show. Members raise `errors::gone` once it is over.
class OfSlideShow : public PowerPointObject {
public:
    OfSlideShow(ProcessPtr process, std::weak_ptr<SlideShowWindow> window)
        : PowerPointObject(std::move(process)), window_(std::move(window)) {}

    /// True for an object of the same class that stands for the same slide show.
    [[nodiscard]] bool isSame(const Object& other) const noexcept final;

protected:
    [[nodiscard]] SlideShowWindowPtr window() const;

private:
    std::weak_ptr<SlideShowWindow> window_;
};

/// SlideShowWindow: a window in which a slide show runs. Lengths are points.
class SlideShowWindowObject final : public OfSlideShow {
public:
    using OfSlideShow::OfSlideShow;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] automation::ObjectPtr owner() const override;
    [[nodiscard]] std::shared_ptr<PresentationObject> presentation() const;
    [[nodiscard]] std::shared_ptr<SlideShowViewObject> view() const;
    /// True for a show that is in no window of a size of its own.
    [[nodiscard]] MsoTriState isFullScreen() const;
    [[nodiscard]] MsoTriState active() const;
    void activate() const;
    template <float Frame::*part> [[nodiscard]] float length() const { return window()->frame.*part; }
    template <float Frame::*part> void setLength(float points) const { window()->frame.*part = points; }
};

} // namespace simulator
