#include "automation/com/Patience.h"

#include "automation/Error.h"
#include "automation/WithoutRetry.h"

#include <algorithm>
#include <thread>

namespace automation::com {

namespace {

/// What the operation of this thread has waited so far.
struct Waiting {
    int depth = 0;
    std::chrono::steady_clock::duration time{};
};

Waiting& waiting() noexcept {
    thread_local Waiting own;
    return own;
}

std::chrono::steady_clock::duration patienceLeft() noexcept {
    constexpr std::chrono::seconds longest{6};
    return waiting().depth > 0 ? longest - waiting().time : longest;
}

bool isBusy(HRESULT status) noexcept {
    return status == remote::callRejected || status == remote::retryLater;
}

} // namespace

HRESULT Patience::untilTaken(const std::function<HRESULT()>& call) {
    HRESULT status = call();
    if (!isBusy(status) || WithoutRetry::isActive()) {
        return status;
    }
    const auto start = Clock::now();
    const auto end = std::min(end_, start + patienceLeft());
    for (auto wait = firstWait; isBusy(status) && Clock::now() + wait <= end; wait = std::min(wait * 2, longestWait)) {
        std::this_thread::sleep_for(wait);
        status = call();
    }
    waiting().time += Clock::now() - start;
    return status;
}

Operation::Operation() noexcept {
    if (waiting().depth++ == 0) {
        waiting().time = {};
    }
}

Operation::~Operation() {
    --waiting().depth;
}

} // namespace automation::com
