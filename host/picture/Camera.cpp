#include "host/picture/Camera.h"

namespace host {

void Camera::called(HostCall call, const automation::Error* /*error*/) {
    if (call == HostCall::InitQuestion) {
        before_ = expose(world_);
    }
}

void Camera::judged(const Reading& /*reading*/) {
    sink_(tellingSlides(before_, before_.presentation.empty() ? Exposure() : expose(world_, before_.presentation)));
}

} // namespace host
