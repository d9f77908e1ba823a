#pragma once

#include "simulator/objects/SlideMembers.h"

namespace simulator {

/// Slide: one slide of a presentation.
class SlideObject final : public SlideMembers {
public:
    SlideObject(ProcessPtr process, std::weak_ptr<Slide> slide) : SlideMembers(std::move(process), std::move(slide)) {}

    [[nodiscard]] const automation::MemberTable& members() const override { return sharedMembers(); }
};

} // namespace simulator
