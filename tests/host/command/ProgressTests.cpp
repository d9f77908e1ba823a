#include "host/command/Progress.h"

#include <gtest/gtest.h>

#include <sstream>

namespace progress_tests {

TEST(Progress, IsOneLineOnATerminalAndALineEveryHalfMinuteElsewhere) {
    using host::Progress;
    Progress::Clock::time_point now;
    const auto clock = [&] { return now; };
    std::ostringstream plain;
    std::ostringstream terminal;
    const std::string dashes(68, '-');
    {
        Progress plainly(plain, 0, clock);
        Progress rewriting(terminal, 80, clock);
        const auto at = [&](std::chrono::milliseconds passed, const std::string& place, std::size_t step) {
            now += passed;
            plainly.at(place, step, 30);
            rewriting.at(place, step, 30);
        };
        at(std::chrono::milliseconds(99), "too early", 1);
        at(std::chrono::milliseconds(1), dashes + "é😀 goes on", 2);
        at(std::chrono::milliseconds(100), "é", 3);
        at(std::chrono::milliseconds(20), "too early", 4);
        at(std::chrono::seconds(30), "half a minute", 5);
    }
    EXPECT_EQ(plain.str(), "5 of 30: half a minute\n");
    EXPECT_EQ(terminal.str(), "\r2 of 30: " + dashes + "é\r3 of 30: é" + std::string(68, ' ') +
                                  "\r5 of 30: half a minute\r" + std::string(22, ' ') + "\r");
}

} // namespace progress_tests
