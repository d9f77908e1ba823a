#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

/// SlideShowTransition: how some slides come in a slide show, and when the next one does.
class SlideShowTransitionObject final : public NodeSetObject<Slide> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;
    /// The first of the slides.
    [[nodiscard]] automation::ObjectPtr owner() const override;

    /// The value that all slides share; mixed (-2) where it is not the same.
    template <auto part> [[nodiscard]] auto get() const {
        const auto read = [](const Slide& slide) { return slide.transition.*part; };
        using Value = decltype(read(*nodes().first()));
        if constexpr (std::is_same_v<Value, bool>) {
            return nodes().common(msoTriStateMixed, [&](const Slide& slide) { return triState(read(slide)); });
        } else {
            return nodes().common(static_cast<Value>(-2), read);
        }
    }
    template <bool Transition::*part> void turn(MsoTriState on) { set<part>(on != msoFalse); }
    /// A PpEntryEffect; raises an invalid request for one that PowerPoint 2003 has not.
    void setEntryEffect(std::int32_t effect);
    /// PpTransitionSpeed, 1 (slow) to 3 (fast).
    void setSpeed(std::int32_t speed);
    /// Seconds, up to a day.
    void setAdvanceTime(float seconds);

private:
    template <auto part, typename Value> void set(Value value) {
        nodes().change([value](Slide& slide) { slide.transition.*part = value; });
    }
};

} // namespace simulator
