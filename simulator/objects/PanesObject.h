#pragma once

#include "simulator/objects/PaneObject.h"

namespace simulator {

/// Panes: outline, slide and notes in normal view; a single one in any other view.
class PanesObject final : public PowerPointObject {
public:
    PanesObject(ProcessPtr process, std::weak_ptr<DocumentWindow> window)
        : PowerPointObject(std::move(process)), window_(std::move(window)) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::int32_t count() const;
    /// By place from 1. Raises out of range.
    [[nodiscard]] std::shared_ptr<PaneObject> item(std::int32_t index) const;
    [[nodiscard]] std::shared_ptr<PaneObject> active() const;
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    std::weak_ptr<DocumentWindow> window_;
};

} // namespace simulator
