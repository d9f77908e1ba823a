#pragma once

#include "automation/Unmoved.h"

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace tests {

/// Ends the program with `exitCode` and names the test when one test takes longer than it may.
class Watchdog final : public testing::EmptyTestEventListener, automation::Unmoved {
public:
    static constexpr int exitCode = 97;

    explicit Watchdog(std::chrono::seconds limit);
    ~Watchdog() override;

    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;

private:
    void watch();
    void next(std::string running);

    std::chrono::seconds limit_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::string running_;
    unsigned tests_ = 0;
    bool over_ = false;
    std::thread thread_;
};

} // namespace tests
