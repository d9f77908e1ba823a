#pragma once

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

class CommandBarsObject;
class DocumentWindowObject;
class DocumentWindowsObject;
class PresentationObject;
class PresentationsObject;
class SlideShowWindowsObject;

/// Application: PowerPoint itself. An invisible one has no active window and no active presentation.
class ApplicationObject final : public PowerPointObject {
public:
    using PowerPointObject::PowerPointObject;

    [[nodiscard]] const automation::MemberTable& members() const override;
    /// All stand for the one PowerPoint of their process.
    [[nodiscard]] bool isSame(const Object& other) const noexcept override;

    [[nodiscard]] std::shared_ptr<PresentationsObject> presentations() const;
    [[nodiscard]] std::shared_ptr<DocumentWindowsObject> windows() const;
    [[nodiscard]] std::shared_ptr<SlideShowWindowsObject> slideShowWindows() const;
    [[nodiscard]] std::shared_ptr<CommandBarsObject> commandBars() const;
    /// Raises an invalid request where there is none.
    [[nodiscard]] std::shared_ptr<DocumentWindowObject> activeWindow() const;
    /// Raises an invalid request where there is none.
    [[nodiscard]] std::shared_ptr<PresentationObject> activePresentation() const;

    [[nodiscard]] std::u16string name() const { return u"Microsoft PowerPoint"; }
    [[nodiscard]] std::u16string version() const { return u"11.0"; }
    [[nodiscard]] std::u16string path() const { return u"C:\\Program Files\\Microsoft Office\\OFFICE11"; }
    [[nodiscard]] std::u16string caption() const { return process()->title(); }
    [[nodiscard]] std::int32_t hwnd() const { return process()->window().handle(); }

    [[nodiscard]] MsoTriState active() const;
    void activate() const { process()->window().activate(); }
    [[nodiscard]] MsoTriState visible() const;
    /// Raises an invalid request where a visible PowerPoint is to be hidden.
    void setVisible(MsoTriState visible) const;
    [[nodiscard]] PpWindowState windowState() const { return process()->window().state(); }
    /// Raises an invalid request for a value outside 1 to 3.
    void setWindowState(PpWindowState state) const;
    /// Where the window stands when it is not maximized, in points.
    template <float Frame::*side> [[nodiscard]] float length() const { return process()->settings().mainWindow.*side; }
    /// Raises an invalid request outside -4000 to 4000.
    template <float Frame::*side> void setLength(float points) const {
        constexpr float farthest = 4000;
        errors::demandWithin(points, -farthest, farthest, u"Application");
        process()->settings().mainWindow.*side = points;
    }
    [[nodiscard]] MsoTriState showStartupDialog() const;
    void setShowStartupDialog(MsoTriState shown) const;

    /// Ends PowerPoint, as Process::quit does.
    void quit() const { process()->quit(); }
};

} // namespace simulator
