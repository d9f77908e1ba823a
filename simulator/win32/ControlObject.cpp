#include "simulator/win32/ControlObject.h"

namespace simulator::standin {

bool ControlObject::busy() const {
    requireRunning();
    return gate_->isBusy();
}

void ControlObject::setBusy(bool busy) const {
    refuse(busy ? CallGate::withoutEnd : 0);
}

void ControlObject::refuse(std::int32_t calls) const {
    requireRunning();
    gate_->refuse(calls);
}

void ControlObject::refuseAtCall(std::int32_t n, std::int32_t calls) const {
    requireRunning();
    troubles_.beforeCall(n, [gate = gate_, calls] { gate->refuse(calls == 0 ? CallGate::withoutEnd : calls); });
}

std::int32_t ControlObject::refusals() const {
    requireRunning();
    return gate_->refusals();
}

void ControlObject::openDialog(const std::u16string& title) const {
    requireRunning();
    window_.openDialog(title);
}

std::int32_t ControlObject::dialogs() const {
    requireRunning();
    return static_cast<std::int32_t>(window_.dialogs());
}

void ControlObject::closeDialog() const {
    requireRunning();
    window_.closeDialog();
}

void ControlObject::answerSaving(const std::u16string& answer) const {
    prompt_.answer = SavePrompt::answerOf(answer);
    if (!prompt_.answer) {
        automation::raise(automation::RunTimeError::InvalidProcedureCall);
    }
}

std::int32_t ControlObject::slowness() const {
    requireRunning();
    return troubles_.slowness();
}

void ControlObject::setSlowness(std::int32_t milliseconds) const {
    requireRunning();
    troubles_.setSlowness(milliseconds);
}

void ControlObject::delayCall(std::int32_t n, std::int32_t milliseconds) const {
    requireRunning();
    troubles_.delayCall(n, milliseconds);
}

void ControlObject::dieAtCall(std::int32_t n) const {
    requireRunning();
    troubles_.dieAtCall(n);
}

std::int32_t ControlObject::calls() const {
    requireRunning();
    return troubles_.calls();
}

std::int32_t ControlObject::refused() const {
    requireRunning();
    return gate_->refused();
}

std::int32_t ControlObject::delayed() const {
    requireRunning();
    return troubles_.delays();
}

automation::Array ControlObject::remoteCalls() const {
    requireRunning();
    return {gate_->taken().begin(), gate_->taken().end()};
}

std::int32_t ControlObject::escapes() const {
    requireRunning();
    return window_.escapes();
}

const automation::MemberTable& ControlObject::members() const {
    using automation::method;
    using automation::property;
    using This = ControlObject;
    static const automation::MemberTable table{
        property<&This::busy, &This::setBusy>(u"Busy"), method<&This::refuse>(u"Refuse"),
        property<&This::refusals>(u"Refusals"),         method<&This::openDialog>(u"OpenDialog"),
        property<&This::dialogs>(u"Dialogs"),           property<&This::slowness, &This::setSlowness>(u"Slowness"),
        method<&This::dieAtCall>(u"DieAtCall"),         property<&This::calls>(u"Calls"),
        property<&This::escapes>(u"Escapes"),           property<&This::bits>(u"Bits"),
        property<&This::remoteCalls>(u"RemoteCalls"),   method<&This::refuseAtCall>(u"RefuseAtCall"),
        method<&This::delayCall>(u"DelayCall"),         property<&This::refused>(u"Refused"),
        property<&This::delayed>(u"Delayed"),           method<&This::closeDialog>(u"CloseDialog"),
        method<&This::answerSaving>(u"AnswerSaving"),
    };
    return table;
}

void ControlObject::requireRunning() const {
    if (isOver_) {
        throw automation::Error(automation::remote::serverUnavailable, {}, u"PowerPoint has ended");
    }
}

} // namespace simulator::standin
