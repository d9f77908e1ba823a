#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace host {

/// The seat before the exercise: one page at a time plays it. A page that is closed says so, one that dies is no longer
/// heard of.
class Seat {
public:
    using Clock = std::chrono::steady_clock;

    explicit Seat(std::function<Clock::time_point()> now = Clock::now) : now_(std::move(now)) {}

    /// Seats a page and answers with the name it goes by from now on; nothing where another one sits there.
    [[nodiscard]] std::optional<std::string> take();
    /// Seats a page in the place of whoever sits there.
    [[nodiscard]] std::string takeOver();
    /// True for the page that sits there, which has then been heard of.
    [[nodiscard]] bool holds(const std::string& name);
    void leave(const std::string& name);

    /// True once the last page has left for good: it might only be loading anew.
    [[nodiscard]] bool isDeserted() const;

    static constexpr std::chrono::seconds reloading{3}; ///< from leaving to coming back
    static constexpr std::chrono::minutes silence{3};   ///< browsers let a hidden page speak once a minute

private:
    [[nodiscard]] bool isTaken() const { return !name_.empty() && now_() - heard_ < silence; }

    std::function<Clock::time_point()> now_;
    std::string name_; ///< of the page that sits there; empty for none
    bool wasTaken_ = false;
    Clock::time_point heard_; ///< when the page spoke last, or left
};

} // namespace host
