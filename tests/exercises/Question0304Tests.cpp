#include "host/command/Library.h"
#include "host/run/TrainingHost.h"
#include "host/world/EmbeddedWorld.h"
#include "host/world/Files.h"

#include <gtest/gtest.h>

namespace question0304_tests {

/// A search by pattern that leaves out a file without extension: the name alone finds it.
TEST(Question0304, FindsAnOutlineWithoutExtensionByItsName) {
    struct NoneWithADot final : automation::Observer {
        automation::Value around(const automation::Crossing& crossing, const Next& next) override {
            return crossing.display().find(u".*\"") == std::u16string::npos ? next() : automation::Value(u"");
        }
    };
    const host::language::ScenarioFile file = host::load(host::Library(SCENARIOS).fileOf(304));
    const host::Course course(file, host::makeEmbeddedWorld);
    const host::WorldPtr world = host::makeEmbeddedWorld(std::make_shared<NoneWithADot>());
    host::Witness nobody;
    host::TrainingHost host(*world, course, 304, nobody);
    host.initQuestion(304, world->hostFolder());
    world->files().write(world->hostFolder() + u"Plan exo 3", {});
    EXPECT_EQ(host.check().causeErreur, u"B");
}

} // namespace question0304_tests
