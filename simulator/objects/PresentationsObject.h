#pragma once

#include "simulator/objects/PresentationObject.h"

#include <optional>

namespace simulator {

/// Presentations: the open presentations, in the order in which they were opened.
class PresentationsObject final : public PowerPointObject {
public:
    using PowerPointObject::PowerPointObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::int32_t count() const;
    /// By place from 1, or by file name. Raises an invalid request where there is none.
    [[nodiscard]] std::shared_ptr<PresentationObject> item(const automation::Value& index) const;
    /// A new presentation without slides; with a window unless that is declined, which an invisible PowerPoint refuses.
    std::shared_ptr<PresentationObject> add(std::optional<MsoTriState> withWindow) const;
    /// Opens a file, or shows it where it is open already. Raises an invalid request where it cannot be read.
    std::shared_ptr<PresentationObject> open(const std::u16string& fileName, std::optional<MsoTriState> readOnly,
                                             std::optional<MsoTriState> untitled,
                                             std::optional<MsoTriState> withWindow) const;
};

} // namespace simulator
