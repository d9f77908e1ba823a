#pragma once

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

class CommandBarControlsObject;
class CommandBarsObject;

/// CommandBar: a menu bar, toolbar, task pane or context menu.
class CommandBarObject final : public PowerPointObject {
public:
    /// `place` is from 0.
    CommandBarObject(ProcessPtr process, std::size_t place) : PowerPointObject(std::move(process)), place_(place) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::u16string name() const { return bar().name; }
    /// Place among PowerPoint's bars, from 1.
    [[nodiscard]] std::int32_t index() const { return static_cast<std::int32_t>(place_) + 1; }
    [[nodiscard]] bool builtIn() const { return true; }
    [[nodiscard]] MsoBarType type() const { return bar().type; }
    [[nodiscard]] bool enabled() const { return bar().enabled; }
    /// A bar that is disabled is hidden.
    void setEnabled(bool enabled) const;
    [[nodiscard]] bool visible() const { return bar().visible; }
    /// Raises an invalid request for a context menu, and where a disabled bar is to be shown.
    void setVisible(bool visible) const;
    [[nodiscard]] MsoBarPosition position() const { return bar().position; }
    /// Raises an invalid request for a context menu, and for a value outside 0 to 4.
    void setPosition(MsoBarPosition position) const;
    [[nodiscard]] std::shared_ptr<CommandBarControlsObject> controls() const;
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    [[nodiscard]] CommandBar& bar() const { return process()->settings().commandBars.bars.at(place_); }

    std::size_t place_;
};

} // namespace simulator
