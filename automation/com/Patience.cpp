#include "automation/com/Patience.h"

#include "automation/Error.h"
#include "automation/WithoutRetry.h"

#include <algorithm>
#include <thread>

namespace automation::com {

namespace {

bool isBusy(HRESULT status) noexcept {
    return status == remote::callRejected || status == remote::retryLater;
}

} // namespace

HRESULT Patience::untilTaken(const std::function<HRESULT()>& call) {
    auto wait = firstWait;
    HRESULT status = call();
    while (isBusy(status) && !WithoutRetry::isActive() && Clock::now() + wait <= end_) {
        std::this_thread::sleep_for(wait);
        wait = std::min(wait * 2, longestWait);
        status = call();
    }
    return status;
}

} // namespace automation::com
