#include "host/win32/StandIn.h"

#include "automation/com/Objects.h"
#include "simulator/win32/StandInIdentity.h"

namespace host {

namespace {

automation::com::ComPtr<IUnknown> running() {
    automation::com::ComPtr<IUnknown> found;
    GetActiveObject(simulator::standin::controlClass, nullptr, found.receive());
    return found;
}

} // namespace

automation::LateBound standIn() {
    const auto controls = running().as<IDispatch>();
    if (!controls) {
        automation::raise(automation::RunTimeError::CannotCreateObject);
    }
    return automation::LateBound(automation::com::objectOf(controls.get()));
}

bool isStandInRunning() {
    return static_cast<bool>(running());
}

} // namespace host
