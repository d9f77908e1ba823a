#include "simulator/system/EmbeddedServers.h"

#include "automation/Error.h"
#include "automation/Text.h"

namespace simulator {

automation::ObjectPtr EmbeddedServers::attach(std::u16string_view id) {
    if (!program_.isRunning() || !automation::equalIgnoringCase(id, programmaticId)) {
        automation::raise(automation::RunTimeError::CannotCreateObject);
    }
    return program_.application();
}

automation::ObjectPtr EmbeddedServers::create(std::u16string_view id) {
    if (!automation::equalIgnoringCase(id, programmaticId)) {
        automation::raise(automation::RunTimeError::CannotCreateObject);
    }
    program_.start();
    return program_.application();
}

} // namespace simulator
