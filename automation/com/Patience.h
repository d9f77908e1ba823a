#pragma once

#include "automation/com/Ole.h"

#include <chrono>
#include <functional>

namespace automation::com {

/// How long one access to a member waits for a busy server, with all the calls that it takes: two seconds at most, and
/// not at all inside WithoutRetry.
class Patience {
public:
    /// Makes a call until the other process takes it: one that it refuses because it is busy is made again after short,
    /// growing waits, as long as the patience lasts. Any other outcome is final.
    [[nodiscard]] HRESULT untilTaken(const std::function<HRESULT()>& call);

private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds firstWait{10};
    static constexpr std::chrono::milliseconds longestWait{200};
    static constexpr std::chrono::milliseconds longest{2000};

    Clock::time_point end_ = Clock::now() + longest;
};

} // namespace automation::com
