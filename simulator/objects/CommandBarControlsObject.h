#pragma once

#include "simulator/objects/CommandBarControlObject.h"

namespace simulator {

class CommandBarObject;

/// CommandBarControls: the buttons and menus of a command bar.
class CommandBarControlsObject final : public PowerPointObject {
public:
    /// `bar` is the bar's place from 0.
    CommandBarControlsObject(ProcessPtr process, std::size_t bar) : PowerPointObject(std::move(process)), bar_(bar) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(controls().size()); }
    /// By place from 1, or by caption. Raises an invalid request where there is none.
    [[nodiscard]] std::shared_ptr<CommandBarControlObject> item(const automation::Value& index) const;
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    [[nodiscard]] const std::vector<CommandBarControl>& controls() const {
        return process()->settings().commandBars.bars.at(bar_).controls;
    }

    std::size_t bar_;
};

} // namespace simulator
