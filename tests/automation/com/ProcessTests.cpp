#include "automation/Elements.h"
#include "automation/LateBound.h"
#include "automation/WithoutRetry.h"
#include "automation/com/Objects.h"
#include "tests/automation/com/Sample.h"
#include "tests/automation/com/TestServer.h"
#include "tests/support/Errors.h"

#include <gtest/gtest.h>

#include <chrono>

namespace process_tests {

using namespace automation;
using namespace automation::com;
using Clock = std::chrono::steady_clock;
using tests::Sample;

/// Calls to an object in another process.
class ProcessTest : public testing::Test {
protected:
    void SetUp() override {
        ComPtr<IUnknown> running;
        ASSERT_EQ(GetActiveObject(tests::serverClass, nullptr, running.receive()), S_OK);
        remote_ = LateBound(objectOf(running.as<IDispatch>().get()));
        ASSERT_TRUE(remote_);
    }

    std::int32_t numberRaised() {
        return errorNumber([&] { remote_.get(u"Number"); });
    }

    tests::ServerProcess server_;
    LateBound remote_;
};

TEST_F(ProcessTest, PassesValuesErrorsAndObjects) {
    EXPECT_EQ(remote_.get(u"Number"), Value(7));
    remote_.put(u"Number", 9);
    EXPECT_EQ(remote_.get(u"Number"), Value(9));
    EXPECT_EQ(remote_.call(u"Add", 1, Missing()), Value(101));
    const std::u16string_view names[] = {u"Right", u"Left"};
    std::vector<Value> named{3, 1};
    EXPECT_EQ(remote_.object()->invoke(Name(u"Add", {}, names), Access::Call, named), Value(4));
    EXPECT_EQ(remote_.object()->invoke(Name(u"Add", {}, std::span(names, 1)), Access::Call, named), Value(4));
    EXPECT_EQ(errorNumber([&] { remote_.object()->invoke(Name(u"Echo", {}, names), Access::Call, named); }), 448);
    EXPECT_EQ(remote_.call(defaultMember, 2), Value(u"Élément 2"));
    const Array values{1.5F, u"é", true, nullptr};
    EXPECT_EQ(remote_.call(u"Echo", values), Value(values));
    Value variable = u"avant";
    remote_.call(u"Change", Value::reference(variable), u"après");
    EXPECT_EQ(variable, Value(u"après"));

    const auto error = ::errorOf([&] { remote_.call(u"Fail", 9); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), 9);
    EXPECT_EQ(error->source(), Sample::source);
    EXPECT_EQ(error->description(), Sample::description);
    EXPECT_EQ(error->helpFile(), Sample::helpFile);
    EXPECT_EQ(error->helpContext(), Sample::helpContext);
    EXPECT_EQ(errorNumber([&] { remote_.get(u"Absent"); }), 438);

    const LateBound elements(remote_.get(newEnum).to<ObjectPtr>());
    for (std::int32_t left = 9; left > 0; --left) {
        EXPECT_EQ(elements.call(u"Next"), Value(left));
    }
    EXPECT_EQ(elements.call(u"Next"), Value(Missing()));

    const auto child = remote_.get(u"Child").to<ObjectPtr>();
    EXPECT_TRUE(isSame(child, remote_.get(u"Child").to<ObjectPtr>()));
    EXPECT_FALSE(isSame(child, remote_.object()));
    EXPECT_TRUE(isSame(remote_.call(u"Echo", child).to<ObjectPtr>(), child));
    const auto own = std::make_shared<Sample>();
    EXPECT_EQ(remote_.call(u"Echo", own), Value(own)) << "an own object comes back as itself";
    remote_.put(u"Target", own);
    EXPECT_EQ(remote_.get(u"Target"), Value(own));
    remote_.put(u"Target", nullptr);
}

TEST_F(ProcessTest, WaitsForABusyServer) {
    remote_.call(u"BeBusy", 200);
    {
        const WithoutRetry once;
        EXPECT_EQ(numberRaised(), remote::callRejected);
    }
    EXPECT_EQ(remote_.call(u"Add", 1, 2), Value(3)) << "the name look-up is taken again too";

    remote_.call(u"BeBusy", 5000);
    const auto start = Clock::now();
    EXPECT_EQ(numberRaised(), remote::callRejected);
    EXPECT_LT(Clock::now() - start, std::chrono::milliseconds(2700));
}

TEST_F(ProcessTest, OutlivesAServerThatDies) {
    EXPECT_EQ(remote_.get(u"Number"), Value(7));
    const auto child = remote_.get(u"Child").to<ObjectPtr>();
    const std::int32_t number = errorNumber([&] { remote_.call(u"Die"); });
    EXPECT_TRUE(remote::isDead(number)) << std::hex << number;
    EXPECT_EQ(numberRaised(), number);
    EXPECT_TRUE(remote::isDead(errorNumber([&] { child->invoke(u"Number", Access::Get, {}); })));
    EXPECT_TRUE(isSame(remote_.object(), remote_.object()));

    const auto start = Clock::now();
    remote_ = LateBound();
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(2)) << "releasing it waits for nobody";
}

} // namespace process_tests
