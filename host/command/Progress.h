#pragma once

#include "automation/Unmoved.h"

#include <chrono>
#include <functional>
#include <iosfwd>
#include <string>

namespace host {

/// Tells someone who waits how far long work has come: on a terminal by a line that is written over and over, elsewhere
/// by a plain line every half minute.
class Progress : automation::Unmoved {
public:
    using Clock = std::chrono::steady_clock;

    /// Tells nobody.
    Progress() = default;
    /// `out` must outlive this object; it is a terminal of so many columns, or none for 0.
    Progress(std::ostream& out, std::size_t columns, std::function<Clock::time_point()> now = Clock::now);
    ~Progress();

    /// The work is at this place, the `step`-th of `steps`.
    void at(const std::string& place, std::size_t step, std::size_t steps);
    /// Takes the line off the terminal, before something else is written there.
    void clear();

private:
    std::ostream* out_ = nullptr;
    std::size_t columns_ = 0;
    std::function<Clock::time_point()> now_ = Clock::now;
    std::size_t width_ = 0; ///< of the line on the terminal
    Clock::time_point told_ = now_();
};

} // namespace host
