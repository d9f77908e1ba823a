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

bool mayWait(std::chrono::steady_clock::duration more) noexcept {
    constexpr std::chrono::seconds longest{6};
    return waiting().depth == 0 || waiting().time + more <= longest;
}

bool isBusy(HRESULT status) noexcept {
    return status == remote::callRejected || status == remote::retryLater;
}

} // namespace

HRESULT Patience::untilTaken(const std::function<HRESULT()>& call) {
    for (auto wait = firstWait;; wait = std::min(wait * 2, longestWait)) {
        const auto start = Clock::now();
        const auto before = waiting().time;
        const HRESULT status = call();
        if (!isBusy(status) || WithoutRetry::isActive()) {
            return status;
        }
        const auto refused = Clock::now() - start;
        waiting().time = before + refused; // what was waited inside the call is part of it
        const bool isLast = waited_ + refused + wait > longest || !mayWait(wait);
        if (!isLast) {
            std::this_thread::sleep_for(wait);
        }
        const auto spent = Clock::now() - start;
        waiting().time = before + spent;
        waited_ += spent;
        if (isLast) {
            return status;
        }
    }
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
