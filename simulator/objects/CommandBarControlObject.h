#pragma once

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

class CommandBarObject;

/// CommandBarControl: a button or menu of a command bar. Whether it is available is told from the selection as it is.
class CommandBarControlObject final : public PowerPointObject {
public:
    static constexpr std::int32_t stateUnavailable = 1;      ///< STATE_SYSTEM_UNAVAILABLE
    static constexpr std::int32_t stateInvisible = 0x8000;   ///< STATE_SYSTEM_INVISIBLE
    static constexpr std::int32_t stateFocusable = 0x100000; ///< STATE_SYSTEM_FOCUSABLE

    /// Both places are from 0.
    CommandBarControlObject(ProcessPtr process, std::size_t bar, std::size_t place)
        : PowerPointObject(std::move(process)), bar_(bar), place_(place) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::u16string caption() const { return control().caption; }
    [[nodiscard]] std::int32_t index() const { return static_cast<std::int32_t>(place_) + 1; }
    [[nodiscard]] bool builtIn() const { return true; }
    [[nodiscard]] bool enabled() const;
    /// Accessibility state as bits; a control has no children: raises an invalid request for a child other than 0.
    [[nodiscard]] std::int32_t accState(std::optional<std::int32_t> child) const;
    /// Does what the control does. Raises an invalid request where it is unavailable, and for a command that nothing
    /// stands behind here.
    void execute() const;
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    [[nodiscard]] const CommandBar& bar() const { return process()->settings().commandBars.bars.at(bar_); }
    [[nodiscard]] const CommandBarControl& control() const { return bar().controls.at(place_); }
    /// The open freeform that is selected alone in the active window; null where there is none.
    [[nodiscard]] ShapePtr openCurve() const;

    std::size_t bar_;
    std::size_t place_;
};

} // namespace simulator
