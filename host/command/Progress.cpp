#include "host/command/Progress.h"

#include "automation/Text.h"
#include "host/language/Words.h"

#include <algorithm>
#include <ostream>

namespace host {

namespace {
constexpr std::chrono::milliseconds rewritten{100};
constexpr std::chrono::seconds repeated{30};
} // namespace

Progress::Progress(std::ostream& out, std::size_t columns, std::function<Clock::time_point()> now)
    : out_(&out), columns_(columns), now_(std::move(now)) {}

Progress::~Progress() {
    clear();
}

void Progress::at(const std::string& place, std::size_t step, std::size_t steps) {
    const Clock::time_point now = now_();
    if (out_ == nullptr || now - told_ < (columns_ != 0 ? Clock::duration(rewritten) : Clock::duration(repeated))) {
        return;
    }
    told_ = now;
    const std::string line = std::to_string(step) + " of " + std::to_string(steps) + ": " + place;
    if (columns_ == 0) {
        *out_ << line << std::endl;
        return;
    }
    const std::u16string all = automation::fromUtf8(line);
    const std::u16string_view shown = beginningOf(all, columns_ - 1);
    *out_ << '\r' << automation::toUtf8(shown) << std::string(width_ - std::min(width_, shown.size()), ' ')
          << std::flush;
    width_ = shown.size();
}

void Progress::clear() {
    if (width_ != 0) {
        *out_ << '\r' << std::string(width_, ' ') << '\r' << std::flush;
        width_ = 0;
    }
}

} // namespace host
