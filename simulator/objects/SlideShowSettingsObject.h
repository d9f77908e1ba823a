#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class PresentationObject;
class SlideShowWindowObject;

/// SlideShowSettings: how a presentation is shown. Slides are named by their places from 1.
class SlideShowSettingsObject final : public NodeSetObject<Presentation> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] automation::ObjectPtr owner() const override;

    [[nodiscard]] std::int32_t startingSlide() const { return node()->slideShow.startingSlide; }
    /// Raises out of range for a place where there is no slide, as `setEndingSlide` does.
    void setStartingSlide(std::int32_t place);
    [[nodiscard]] std::int32_t endingSlide() const;
    void setEndingSlide(std::int32_t place);

    template <std::int32_t SlideShowSetup::*part> [[nodiscard]] std::int32_t number() const {
        return node()->slideShow.*part;
    }
    /// Takes 1 to 3; raises an invalid request for any other.
    template <std::int32_t SlideShowSetup::*part> void setNumber(std::int32_t value) {
        errors::demandWithin(value, 1, 3, u"SlideShowSettings (membre inconnu)");
        nodes().change([value](Presentation& presentation) { presentation.slideShow.*part = value; });
    }
    template <bool SlideShowSetup::*part> [[nodiscard]] MsoTriState state() const {
        return triState(node()->slideShow.*part);
    }
    template <bool SlideShowSetup::*part> void setState(MsoTriState on) {
        nodes().change([on](Presentation& presentation) { presentation.slideShow.*part = on != msoFalse; });
    }

    /// Shows the slides. Raises an invalid request where there is none to show.
    [[nodiscard]] std::shared_ptr<SlideShowWindowObject> run() const;
};

} // namespace simulator
