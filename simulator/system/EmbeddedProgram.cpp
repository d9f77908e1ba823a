#include "simulator/system/EmbeddedProgram.h"

#include "automation/Error.h"
#include "simulator/objects/ApplicationObject.h"

namespace simulator {

void EmbeddedProgram::start() {
    if (isRunning()) {
        return;
    }
    if (!installed_) {
        automation::raise(automation::RunTimeError::CannotCreateObject);
    }
    window_ = std::make_unique<EmbeddedMainWindow>(windows_, [this] { end(); });
    process_ = std::make_shared<Process>(*window_, store_, settings_);
}

void EmbeddedProgram::end() {
    if (process_) {
        process_->end();
    }
}

bool EmbeddedProgram::isRunning() const noexcept {
    return process_ && process_->state() != Process::State::Gone;
}

automation::ObjectPtr EmbeddedProgram::application() const {
    return isRunning() ? std::make_shared<ApplicationObject>(process_) : nullptr;
}

} // namespace simulator
