#include "simulator/system/EmbeddedServers.h"

#include "automation/Error.h"
#include "automation/Text.h"

namespace simulator {

automation::ObjectPtr EmbeddedServers::attach(std::u16string_view id) {
    if (!process_.isRunning() || !automation::equalIgnoringCase(id, programmaticId)) {
        automation::raise(automation::RunTimeError::CannotCreateObject);
    }
    return process_.application();
}

automation::ObjectPtr EmbeddedServers::create(std::u16string_view id) {
    if (!automation::equalIgnoringCase(id, programmaticId)) {
        automation::raise(automation::RunTimeError::CannotCreateObject);
    }
    process_.start();
    return process_.application();
}

} // namespace simulator
