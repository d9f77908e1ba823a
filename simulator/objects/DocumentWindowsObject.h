#pragma once

#include "simulator/objects/DocumentWindowObject.h"

#include <optional>

namespace simulator {

/// DocumentWindows: the document windows of PowerPoint or of one presentation, the active one first.
class DocumentWindowsObject final : public PowerPointObject {
public:
    using PowerPointObject::PowerPointObject;
    /// The windows of one presentation.
    DocumentWindowsObject(ProcessPtr process, std::weak_ptr<Presentation> presentation)
        : PowerPointObject(std::move(process)), presentation_(std::move(presentation)) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::int32_t count() const;
    /// By place from 1, or by caption. Raises an invalid request where there is none.
    [[nodiscard]] std::shared_ptr<DocumentWindowObject> item(const automation::Value& index) const;
    /// Makes no window maximized or an icon; side by side for 1 (ppArrangeTiled), one over the other for 2.
    void arrange(std::optional<std::int32_t> arrangeStyle) const;

private:
    [[nodiscard]] std::vector<DocumentWindowPtr> windows() const;

    std::optional<std::weak_ptr<Presentation>> presentation_;
};

} // namespace simulator
