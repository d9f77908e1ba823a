#include "automation/com/Patience.h"

#include "automation/Error.h"
#include "automation/WithoutRetry.h"

#include <algorithm>
#include <atomic>
#include <thread>

namespace automation::com {

namespace {

/// What the operation under way has waited so far. It is the process's, in which one operation of the module runs at a
/// time: a variable of each thread would be made at its first use, where memory that runs out ends the process.
struct Waiting {
    std::atomic<int> depth = 0;
    std::atomic<std::chrono::steady_clock::duration> time{};
};

constinit Waiting waiting;

bool mayWait(std::chrono::steady_clock::duration more) noexcept {
    constexpr std::chrono::seconds longest{6};
    return waiting.depth == 0 || waiting.time.load() + more <= longest;
}

bool isBusy(HRESULT status) noexcept {
    return status == remote::callRejected || status == remote::retryLater;
}

} // namespace

HRESULT Patience::untilTaken(const std::function<HRESULT()>& call) {
    for (auto wait = firstWait;; wait = std::min(wait * 2, longestWait)) {
        const auto start = Clock::now();
        const Clock::duration before = waiting.time;
        const HRESULT status = call();
        if (!isBusy(status) || WithoutRetry::isActive()) {
            return status;
        }
        const auto refused = Clock::now() - start;
        waiting.time = before + refused; // what was waited inside the call is part of it
        const bool isLast = waited_ + refused + wait > longest || !mayWait(wait);
        if (!isLast) {
            std::this_thread::sleep_for(wait);
        }
        const auto spent = Clock::now() - start;
        waiting.time = before + spent;
        waited_ += spent;
        if (isLast) {
            return status;
        }
    }
}

Operation::Operation() noexcept {
    if (waiting.depth++ == 0) {
        waiting.time = std::chrono::steady_clock::duration{};
    }
}

Operation::~Operation() {
    --waiting.depth;
}

} // namespace automation::com
