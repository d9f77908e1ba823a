#include "tests/win32/Watchdog.h"

#include <windows.h>

#include <cstdio>

namespace tests {

Watchdog::Watchdog(std::chrono::seconds limit) : limit_(limit), thread_([this] { watch(); }) {}

Watchdog::~Watchdog() {
    {
        const std::lock_guard lock(mutex_);
        over_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void Watchdog::OnTestStart(const testing::TestInfo& test) {
    next(std::string(test.test_suite_name()) + "." + test.name());
}

void Watchdog::OnTestEnd(const testing::TestInfo& /*test*/) {
    next({});
}

void Watchdog::next(std::string running) {
    {
        const std::lock_guard lock(mutex_);
        running_ = std::move(running);
        ++tests_;
    }
    changed_.notify_all();
}

void Watchdog::watch() {
    std::unique_lock lock(mutex_);
    while (!over_) {
        const unsigned watched = tests_;
        const bool moved = changed_.wait_for(lock, limit_, [&] { return over_ || tests_ != watched; });
        if (!moved && !running_.empty()) {
            std::printf("hung: %s\n", running_.c_str());
            std::fflush(stdout);
            TerminateProcess(GetCurrentProcess(), exitCode);
        }
    }
}

} // namespace tests
