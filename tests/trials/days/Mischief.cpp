#include "tests/trials/days/Mischief.h"

namespace trials::days {

using automation::Error;

void Mischief::begin(World& world, std::vector<Trouble> troubles) {
    world_ = &world;
    troubles_ = std::move(troubles);
    hostCalls_ = 0;
}

void Mischief::calling(HostCall call) {
    isPreparing_ = call == HostCall::InitQuestion;
    isUnread_ = false;
    ++hostCalls_;
    const bool isRunning = world_->powerPoint().window() != 0;
    const auto due = std::find_if(troubles_.begin(), troubles_.end(),
                                  [&](const Trouble& each) { return each.hostCall == hostCalls_; });
    if (due == troubles_.end() || (isRemote_ && !isRunning)) {
        return;
    }
    armed_ = &*due;
    if (isRemote_) {
        armed_->fault.arm(due->position);
    } else {
        strike_ = due->fault.at(due->position, *world_);
    }
}

void Mischief::called(HostCall /*call*/, const Error* error) {
    barsUnread_ += isUnread_ && error == nullptr ? 1 : 0;
    if (armed_ == nullptr) {
        return;
    }
    if (!isRemote_) {
        struck_ += strike_.hasStruck() ? 1 : 0;
    } else if (world_->powerPoint().window() == 0) {
        struck_ += armed_->fault.isDeath() ? 1 : 0; // or else the host has ended it
    } else {
        struck_ += armed_->fault.hasStruck(*world_) ? 1 : 0;
        torture::Fault::disarm();
    }
    armed_ = nullptr;
    strike_ = {};
}

automation::Value Mischief::around(const automation::Crossing& crossing, const Next& next) {
    if (!strike_.observer) {
        return next();
    }
    const bool isOfBars = crossing.target.starts_with(u"CommandBar") || crossing.member == u"CommandBars";
    const bool isOnce = armed_->fault.lasting == torture::Fault::Lasting::Once;
    bool isPassed = false;
    try {
        return strike_.observer->around(crossing, [&] {
            isPassed = true;
            return next();
        });
    } catch (const Error&) {
        isUnread_ = isUnread_ || (!isPassed && isPreparing_ && isOfBars && isOnce);
        throw;
    }
}

} // namespace trials::days
