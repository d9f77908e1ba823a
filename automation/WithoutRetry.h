#pragma once

namespace automation {

/// For the length of a scope, on this thread, calls to another process that are refused because it is busy fail at
/// once; otherwise the bridge tries them again for a while. Objects of this process take no notice.
class WithoutRetry {
public:
    WithoutRetry() noexcept { ++depth_; }
    ~WithoutRetry() { --depth_; }
    WithoutRetry(const WithoutRetry&) = delete;
    WithoutRetry& operator=(const WithoutRetry&) = delete;
    WithoutRetry(WithoutRetry&&) = delete;
    WithoutRetry& operator=(WithoutRetry&&) = delete;

    /// True inside such a scope.
    [[nodiscard]] static bool isActive() noexcept { return depth_ > 0; }

private:
    inline static thread_local int depth_ = 0;
};

} // namespace automation
