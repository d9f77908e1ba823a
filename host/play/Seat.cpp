#include "host/play/Seat.h"

#include "host/play/Gate.h"

namespace host {

std::optional<std::string> Seat::take() {
    return isTaken() ? std::nullopt : std::optional(takeOver());
}

std::string Seat::takeOver() {
    name_ = secretOf(64);
    wasTaken_ = true;
    heard_ = now_();
    return name_;
}

bool Seat::holds(const std::string& name) {
    if (name_.empty() || name != name_) {
        return false;
    }
    heard_ = now_();
    return true;
}

void Seat::leave(const std::string& name) {
    if (holds(name)) {
        name_.clear();
    }
}

bool Seat::isDeserted() const {
    return wasTaken_ && now_() - heard_ > (name_.empty() ? Clock::duration(reloading) : Clock::duration(silence));
}

} // namespace host
