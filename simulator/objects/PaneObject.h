#pragma once

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

class DocumentWindowObject;

/// Pane: a pane of a document window.
class PaneObject final : public PowerPointObject {
public:
    /// `index` is from 1.
    PaneObject(ProcessPtr process, std::weak_ptr<DocumentWindow> window, std::int32_t index)
        : PowerPointObject(std::move(process)), window_(std::move(window)), index_(index) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] MsoTriState active() const;
    /// In normal view: thumbnails, slide or notes page; else the view of the window.
    [[nodiscard]] std::int32_t viewType() const;
    /// Gives the pane the focus. In the outline pane the slide shown is selected; leaving it selects nothing.
    void activate() const;
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    std::weak_ptr<DocumentWindow> window_;
    std::int32_t index_;
};

} // namespace simulator
