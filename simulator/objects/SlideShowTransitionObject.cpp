#include "simulator/objects/SlideShowTransitionObject.h"

#include "simulator/document/EntryEffects.h"
#include "simulator/objects/MasterObject.h"

namespace simulator {

const automation::MemberTable& SlideShowTransitionObject::members() const {
    using automation::property;
    using This = SlideShowTransitionObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::get<&Transition::effect>, &This::setEntryEffect>(u"EntryEffect"),
        property<&This::get<&Transition::speed>, &This::setSpeed>(u"Speed"),
        property<&This::get<&Transition::advancesOnClick>, &This::turn<&Transition::advancesOnClick>>(
            u"AdvanceOnClick"),
        property<&This::get<&Transition::advancesOnTime>, &This::turn<&Transition::advancesOnTime>>(u"AdvanceOnTime"),
        property<&This::get<&Transition::advanceTime>, &This::setAdvanceTime>(u"AdvanceTime"),
        property<&This::get<&Transition::isHidden>, &This::turn<&Transition::isHidden>>(u"Hidden"),
    });
    return table;
}

automation::ObjectPtr SlideShowTransitionObject::owner() const {
    return objectOf(process(), nodes().first());
}

void SlideShowTransitionObject::setEntryEffect(std::int32_t effect) {
    if (!entryEffect::isKnown(effect)) {
        errors::invalidValue(u"SlideShowTransition.EntryEffect");
    }
    set<&Transition::effect>(effect);
}

void SlideShowTransitionObject::setSpeed(std::int32_t speed) {
    errors::demandWithin(speed, 1, 3, u"SlideShowTransition.Speed");
    set<&Transition::speed>(speed);
}

void SlideShowTransitionObject::setAdvanceTime(float seconds) {
    constexpr float longest = 86400;
    errors::demandWithin(seconds, 0.0F, longest, u"SlideShowTransition.AdvanceTime");
    set<&Transition::advanceTime>(seconds);
}

} // namespace simulator
