#pragma once

#include "automation/Unmoved.h"

#include <atomic>

namespace automation {

/// For the length of a scope, calls to another process that are refused because it is busy fail at once; otherwise the
/// bridge tries them again for a while. Objects of this process take no notice.
class WithoutRetry : Unmoved {
public:
    WithoutRetry() noexcept { ++depth; }
    ~WithoutRetry() { --depth; }

    /// True inside such a scope.
    [[nodiscard]] static bool isActive() noexcept { return depth > 0; }

private:
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): what nests is the process's
    static constinit inline std::atomic<int> depth = 0; ///< how many scopes the process is in
};

} // namespace automation
