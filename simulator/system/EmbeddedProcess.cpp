#include "simulator/system/EmbeddedProcess.h"

#include "automation/Error.h"
#include "simulator/objects/ApplicationObject.h"

namespace simulator {

void EmbeddedProcess::start() {
    if (isRunning()) {
        return;
    }
    if (!installed_) {
        automation::raise(automation::RunTimeError::CannotCreateObject);
    }
    window_ = std::make_unique<EmbeddedMainWindow>(windows_, [this] { end(); });
    session_ = std::make_shared<Session>(*window_, store_, settings_);
}

void EmbeddedProcess::end() {
    if (session_) {
        session_->end();
    }
}

bool EmbeddedProcess::isRunning() const noexcept {
    return session_ && session_->state() != Session::State::Gone;
}

automation::ObjectPtr EmbeddedProcess::application() const {
    return isRunning() ? std::make_shared<ApplicationObject>(session_) : nullptr;
}

} // namespace simulator
