#include "host/run/Guard.h"

#include "host/world/EmbeddedWorld.h"
#include "tests/support/Script.h"

#include <gtest/gtest.h>

namespace guard_tests {

using automation::LateBound;
using host::HostCall;
using tests::ask;

TEST(Guard, NoticesACallThatTouchesTheLearnersPresentations) {
    const host::WorldPtr world = host::makeEmbeddedWorld();
    world->powerPoint().start();
    const LateBound presentations = ask(LateBound(world->powerPoint().application()), u"Presentations");
    const auto findingsOf = [&](const auto& meddle) {
        host::Guard guard(*world);
        guard.calling(HostCall::TestePoint);
        meddle(ask(presentations, u"Item", 1));
        guard.called(HostCall::TestePoint, nullptr);
        return guard.findings();
    };
    ask(presentations, u"Add");
    EXPECT_EQ(findingsOf([](const LateBound&) {}), std::vector<std::string>());
    const std::vector<std::string> changed =
        findingsOf([](const LateBound& presentation) { ask(ask(presentation, u"Slides"), u"Add", 1, 12); });
    ASSERT_EQ(changed.size(), 1U);
    EXPECT_TRUE(changed[0].starts_with("TestePoint changed the learner's presentation ")) << changed[0];
    const std::vector<std::string> closed =
        findingsOf([](const LateBound& presentation) { presentation.call(u"Close"); });
    ASSERT_EQ(closed.size(), 1U);
    EXPECT_TRUE(closed[0].starts_with("TestePoint closed the learner's presentation ")) << closed[0];
}

} // namespace guard_tests
