#pragma once

#include <cstdint>
#include <functional>

namespace simulator::standin {

/// Counts the calls of the object model, and makes them slow or deadly where that is asked for.
class Troubles {
public:
    static constexpr std::int32_t never = 0;

    /// To be called for every call, before it does anything.
    void meet();

    /// Calls so far.
    [[nodiscard]] std::int32_t calls() const noexcept { return calls_; }
    /// Time that every call takes, in milliseconds.
    void setSlowness(std::int32_t milliseconds) noexcept { slowness_ = milliseconds; }
    [[nodiscard]] std::int32_t slowness() const noexcept { return slowness_; }
    /// The n-th call from now, 1 being the next one, takes so many milliseconds more.
    void delayCall(std::int32_t n, std::int32_t milliseconds) noexcept {
        delayed_ = calls_ + n;
        delay_ = milliseconds;
    }
    /// Calls so far that have been delayed so.
    [[nodiscard]] std::int32_t delays() const noexcept { return delays_; }
    /// Does something before the n-th call from now reaches its object, where it is not too late: at once for n = 1,
    /// else during the call before.
    void beforeCall(std::int32_t n, std::function<void()> action);
    /// The process dies at the n-th call from now, 1 being the next one.
    void dieAtCall(std::int32_t n) noexcept { deadly_ = n == never ? never : calls_ + n; }

private:
    std::int32_t calls_ = 0;
    std::int32_t slowness_ = 0;
    std::int32_t delayed_ = never; ///< the call, counted from the first one
    std::int32_t delay_ = 0;
    std::int32_t delays_ = 0;
    std::int32_t awaited_ = never; ///< the call, counted from the first one
    std::function<void()> action_; ///< taken during the call awaited
    std::int32_t deadly_ = never;  ///< the call, counted from the first one
};

} // namespace simulator::standin
