#pragma once

#include "automation/Unmoved.h"

namespace automation {

/// For the length of a scope, on this thread, calls to another process that are refused because it is busy fail at
/// once; otherwise the bridge tries them again for a while. Objects of this process take no notice.
class WithoutRetry : Unmoved {
public:
    WithoutRetry() noexcept { ++depth(); }
    ~WithoutRetry() { --depth(); }

    /// True inside such a scope.
    [[nodiscard]] static bool isActive() noexcept { return depth() > 0; }

private:
    /// How many scopes this thread is in.
    static int& depth() noexcept {
        thread_local int depth = 0;
        return depth;
    }
};

} // namespace automation
