#pragma once

#include "automation/com/Ole.h"

#include <chrono>
#include <functional>

namespace automation::com {

/// How long one access to a member waits for a busy server, with all the calls that it takes: two seconds at most, not
/// at all inside WithoutRetry, and no longer than the operation has patience left. Only refused calls and the waits
/// after them count, not what a call takes that the server has taken.
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

    Clock::duration waited_{};
};

/// For the length of a scope, one operation that a client has called: all its accesses together wait for six seconds at
/// most. A scope inside another is part of it.
class Operation {
public:
    Operation() noexcept;
    ~Operation();
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;
    Operation(Operation&&) = delete;
    Operation& operator=(Operation&&) = delete;
};

} // namespace automation::com
