#pragma once

#include "simulator/objects/SlideMembers.h"

namespace simulator {

class SlideObject;

/// SlideRange: some slides of a presentation, handled together.
class SlideRangeObject final : public SlideMembers {
public:
    using SlideMembers::SlideMembers;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::int32_t count() const noexcept { return static_cast<std::int32_t>(nodes().size()); }
    /// By place from 1, or by name.
    [[nodiscard]] std::shared_ptr<SlideObject> item(const automation::Value& index) const;
};

} // namespace simulator
