#pragma once

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

class DocumentWindowObject;
class SlideObject;

/// View: what a document window shows.
class ViewObject final : public PowerPointObject {
public:
    ViewObject(ProcessPtr process, std::weak_ptr<DocumentWindow> window)
        : PowerPointObject(std::move(process)), window_(std::move(window)) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::int32_t type() const { return simulator::alive(window_)->viewType; }
    /// Per cent.
    [[nodiscard]] std::int32_t zoom() const { return simulator::alive(window_)->zoom; }
    /// Raises an invalid request outside 10 to 400.
    void setZoom(std::int32_t percent) const;
    /// The slide shown. Raises an invalid request where the presentation has none.
    [[nodiscard]] std::shared_ptr<SlideObject> slide() const;
    void setSlide(const automation::ObjectPtr& slide) const;
    /// Shows the slide at a place from 1; what was selected on another one is selected no longer. Raises out of range.
    void gotoSlide(std::int32_t index) const;
    /// Pastes slides behind the slide shown, anything else on it or in the place of the text selected. Raises an
    /// invalid request where nothing was copied.
    void paste() const;
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    void pasteSlides() const;

    std::weak_ptr<DocumentWindow> window_;
};

} // namespace simulator
