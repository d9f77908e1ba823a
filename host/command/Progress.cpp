#include "host/command/Progress.h"

#include <algorithm>
#include <ostream>

namespace host {

namespace {
constexpr std::chrono::milliseconds rewritten{100};
constexpr std::chrono::seconds repeated{30};
constexpr std::size_t widthOfTerminal = 79;
} // namespace

Progress::Progress(std::ostream& out, bool isTerminal) : out_(&out), isTerminal_(isTerminal) {}

Progress::~Progress() {
    clear();
}

void Progress::at(const std::string& place, std::size_t step, std::size_t steps) {
    const Clock::time_point now = Clock::now();
    if (out_ == nullptr || now - told_ < (isTerminal_ ? Clock::duration(rewritten) : Clock::duration(repeated))) {
        return;
    }
    told_ = now;
    std::string line = std::to_string(step) + " of " + std::to_string(steps) + ": " + place;
    if (!isTerminal_) {
        *out_ << line << std::endl;
        return;
    }
    if (line.size() > widthOfTerminal) {
        line.resize(widthOfTerminal);
        while ((line.back() & 0x80) != 0) { // no half of a letter
            line.pop_back();
        }
    }
    *out_ << '\r' << line << std::string(width_ - std::min(width_, line.size()), ' ') << std::flush;
    width_ = line.size();
}

void Progress::clear() {
    if (width_ != 0) {
        *out_ << '\r' << std::string(width_, ' ') << '\r' << std::flush;
        width_ = 0;
    }
}

} // namespace host
