#pragma once

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

class PaneObject;
class PanesObject;
class PresentationObject;
class SelectionObject;
class ViewObject;

/// DocumentWindow: a window on a presentation. Members raise `errors::gone` once it is closed.
class DocumentWindowObject final : public PowerPointObject {
public:
    DocumentWindowObject(ProcessPtr process, std::weak_ptr<DocumentWindow> window)
        : PowerPointObject(std::move(process)), window_(std::move(window)) {}

    [[nodiscard]] const automation::MemberTable& members() const override;
    [[nodiscard]] automation::ObjectPtr owner() const override;
    /// True for another reference to the same window.
    [[nodiscard]] bool isSame(const Object& other) const noexcept override;

    /// Name of the presentation shown.
    [[nodiscard]] std::u16string caption() const;
    [[nodiscard]] MsoTriState active() const;
    [[nodiscard]] std::int32_t viewType() const { return window()->viewType; }
    /// Another view starts with nothing selected, the slide sorter with the slide shown. Raises an invalid request
    /// outside 1 to 12.
    void setViewType(std::int32_t type) const;

    [[nodiscard]] PpWindowState windowState() const { return window()->state; }
    /// Raises an invalid request for a value outside 1 to 3.
    void setWindowState(PpWindowState state) const;

    /// Where the window stands when it is not maximized, in points.
    template <float Frame::*side> [[nodiscard]] float length() const { return window()->frame.*side; }
    /// Raises an invalid request outside -4000 to 4000.
    template <float Frame::*side> void setLength(float points) const {
        constexpr float farthest = 4000;
        errors::demandWithin(points, -farthest, farthest, u"DocumentWindow");
        window()->frame.*side = points;
    }

    [[nodiscard]] std::shared_ptr<PresentationObject> presentation() const;
    [[nodiscard]] std::shared_ptr<ViewObject> view() const;
    [[nodiscard]] std::shared_ptr<SelectionObject> selection() const;
    [[nodiscard]] std::shared_ptr<PanesObject> panes() const;
    [[nodiscard]] std::shared_ptr<PaneObject> activePane() const;

    /// Another window on the same presentation, in front.
    [[nodiscard]] std::shared_ptr<DocumentWindowObject> newWindow() const;
    void activate() const { process()->activate(window()); }
    /// Closes the window, and its presentation with the last one.
    void close() const { process()->closeWindow(window()); }

private:
    [[nodiscard]] DocumentWindowPtr window() const { return simulator::alive(window_); }

    std::weak_ptr<DocumentWindow> window_;
};

} // namespace simulator
