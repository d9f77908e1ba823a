#include "host/command/Watch.h"

#include "host/command/Commands.h"

#include <cstdlib>
#include <ostream>

namespace host {

Watch::Watch(std::chrono::seconds limit, std::ostream& out) : limit_(limit), out_(out), thread_([this] { run(); }) {}

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
        if (!changed_.wait_for(lock, limit_, [&] { return isOver_ || count_ != watched; })) {
            out_ << "hung: " << name_ << std::endl;
            std::_Exit(static_cast<int>(ExitCode::Hung));
        }
    }
}

} // namespace host
