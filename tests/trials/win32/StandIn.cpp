#include "tests/trials/StandIn.h"

#include "host/win32/StandIn.h"

automation::LateBound trials::standIn() {
    return host::standIn();
}
