#include "automation/Object.h"
#include "automation/com/ComObject.h"
#include "host/command/Watch.h"
#include "tests/automation/com/TestServer.h"

#include <gtest/gtest.h>
#include <objbase.h>

#include <cstdio>
#include <iostream>

namespace {

/// Fails every test that leaves an object behind.
class NothingLeft final : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& /*test*/) override {
        EXPECT_EQ(automation::Object::alive(), 0U);
        EXPECT_EQ(automation::com::CountedAlive::count, 0U);
    }
};

/// Ends the program, with the name of the test, where one takes longer than it may.
class Watchdog final : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& test) override {
        watch_.next(std::string(test.test_suite_name()) + "." + test.name());
    }
    void OnTestEnd(const testing::TestInfo& /*test*/) override { watch_.next({}); }

    host::Watch watch_{std::cout};
};

} // namespace

int main(int count, char** arguments) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (const auto status = tests::serveIfAsked({arguments, static_cast<std::size_t>(count)})) {
        return *status;
    }
    testing::InitGoogleTest(&count, arguments);
    testing::UnitTest& all = *testing::UnitTest::GetInstance();
    all.listeners().Append(std::make_unique<Watchdog>().release()); // the list owns them
    all.listeners().Append(std::make_unique<NothingLeft>().release());
    const int status = RUN_ALL_TESTS();
    if (status == 0) {
        std::printf("%d tests passed, %d bits\n", all.successful_test_count(), static_cast<int>(sizeof(void*) * 8));
    }
    CoUninitialize();
    return status;
}
