#include "simulator/files/text/Descent.h"

#include <algorithm>

namespace simulator::text {

Descent::Descent(const std::u16string& before, const std::u16string& now) : before_(before.size()), now_(now.size()) {
    const std::size_t shorter = std::min(before_, now_);
    while (front_ < shorter && before[front_] == now[front_]) {
        ++front_;
    }
    while (back_ < shorter - front_ && before[before_ - 1 - back_] == now[now_ - 1 - back_]) {
        ++back_;
    }
}

std::size_t Descent::of(std::size_t place) const noexcept {
    if (place >= now_ - back_) {
        return place + before_ - now_;
    }
    return place < front_ ? place : std::max<std::size_t>(front_, 1) - 1;
}

std::optional<std::size_t> Descent::after(std::size_t place) const noexcept {
    if (place < front_) {
        return place;
    }
    return place >= before_ - back_ ? std::optional(place + now_ - before_) : std::nullopt;
}

Descent::Stretch Descent::after(const Stretch& stretch) const noexcept {
    if (stretch.start >= stretch.end || (stretch.start >= front_ && stretch.end <= before_ - back_)) {
        return {};
    }
    return {after(stretch.start).value_or(now_ - back_), after(stretch.end - 1).value_or(front_ - 1) + 1};
}

} // namespace simulator::text
