#pragma once

#include "simulator/objects/CommandBarObject.h"

namespace simulator {

/// CommandBars: PowerPoint's menu bar, toolbars, task pane and context menus.
class CommandBarsObject final : public PowerPointObject {
public:
    using PowerPointObject::PowerPointObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::int32_t count() const;
    /// By place from 1, or by name, case ignored. Raises an invalid request where there is none.
    [[nodiscard]] std::shared_ptr<CommandBarObject> item(const automation::Value& index) const;
    [[nodiscard]] bool displayTooltips() const { return process()->settings().commandBars.displayTooltips; }
    void setDisplayTooltips(bool displayed) const { process()->settings().commandBars.displayTooltips = displayed; }
    [[nodiscard]] std::shared_ptr<CommandBarObject> activeMenuBar() const;
};

} // namespace simulator
