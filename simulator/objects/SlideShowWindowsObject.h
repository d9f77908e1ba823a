#pragma once

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

class SlideShowWindowObject;

/// SlideShowWindows: the slide shows that run, the active one first.
class SlideShowWindowsObject final : public PowerPointObject {
public:
    using PowerPointObject::PowerPointObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::int32_t count() const;
    /// By place from 1.
    [[nodiscard]] std::shared_ptr<SlideShowWindowObject> item(std::int32_t index) const;
};

} // namespace simulator
