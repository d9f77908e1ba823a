#include "host/command/Watch.h"

#include "host/command/ExitCode.h"
#include "host/world/TemporaryFolder.h"

#include <chrono>
#include <cstdlib>
#include <ostream>

namespace host {

namespace {

/// Far more than anything takes on a machine that has a lot to do.
constexpr std::chrono::seconds patience{180};

} // namespace

Watch::Watch(std::ostream& out) : out_(out), thread_([this] { run(); }) {}

Watch::~Watch() {
    {
        const std::lock_guard lock(mutex_);
        isOver_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void Watch::next(std::string name) {
    {
        const std::lock_guard lock(mutex_);
        name_ = std::move(name);
        ++count_;
    }
    changed_.notify_all();
}

void Watch::run() {
    std::unique_lock lock(mutex_);
    while (!isOver_) {
        const unsigned watched = count_;
        const bool isInTime = changed_.wait_for(lock, patience, [&] { return isOver_ || count_ != watched; });
        if (!isInTime && !name_.empty()) {
            out_ << "hung: " << name_ << std::endl;
            TemporaryFolder::removeAll();
            std::_Exit(static_cast<int>(ExitCode::Hung));
        }
    }
}

} // namespace host
