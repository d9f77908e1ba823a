#include "automation/com/Patience.h"

#include "automation/Error.h"
#include "automation/WithoutRetry.h"

#include <chrono>
#include <thread>

namespace automation::com {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto firstWait = 10ms;
constexpr auto longestWait = 200ms;
constexpr auto patience = 2000ms;

bool isBusy(HRESULT status) noexcept {
    return status == remote::callRejected || status == remote::retryLater;
}

} // namespace

HRESULT untilTaken(const std::function<HRESULT()>& call) {
    const auto end = Clock::now() + patience;
    auto wait = firstWait;
    HRESULT status = call();
    while (isBusy(status) && !WithoutRetry::isActive() && Clock::now() + wait <= end) {
        std::this_thread::sleep_for(wait);
        wait = std::min(wait * 2, longestWait);
        status = call();
    }
    return status;
}

} // namespace automation::com
