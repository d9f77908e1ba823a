#include "automation/LateBound.h"
#include "automation/Text.h"
#include "host/command/LiveCheck.h"
#include "host/run/Runner.h"
#include "host/world/RealFile.h"
#include "host/world/TemporaryFolder.h"
#include "tests/support/Program.h"

#include <algorithm>
#include <array>
#include <set>

namespace recheck_tests {

using automation::LateBound;
using automation::ObjectPtr;

/// What the host reads at its first check, with the working presentation as it was then.
struct FirstCheck {
    std::optional<host::Bytes> saved; ///< nothing where the working presentation was not in front
    std::optional<host::Reading> reading;
};

class Keeper final : public host::Witness {
public:
    Keeper(host::World& world, FirstCheck& first) : world_(world), first_(first) {}

    void calling(host::HostCall call) override {
        if (call == host::HostCall::TestePoint && !isCalled_) {
            isCalled_ = true;
            try {
                save();
            } catch (const automation::Error&) { // no PowerPoint, or no presentation: there is nothing to judge again
            }
        }
    }
    void judged(const host::Reading& reading) override {
        if (!first_.reading) {
            first_.reading = reading;
        }
    }

private:
    void save() {
        const LateBound application(world_.powerPoint().application());
        const LateBound active(application.get(u"ActivePresentation").to<ObjectPtr>());
        if (active.get(u"FullName").to<std::u16string>() == world_.hostFolder() + u"Méthodologie.ppt") {
            const std::u16string copy = u"C:\\Copies\\copie.ppt";
            world_.files().write(copy, {}); // so that the folder is there
            active.call(u"SaveCopyAs", copy);
            first_.saved = world_.files().read(copy);
        }
    }

    host::World& world_;
    FirstCheck& first_;
    bool isCalled_ = false;
};

/// Where a file may be judged otherwise: what the live verdict and that of the file then begin with.
struct Excuse {
    std::int32_t question;
    std::string_view live;
    std::string_view ofFile;
};
constexpr std::array excuses{Excuse{304, "the letter", "a success"}, Excuse{308, "a success", "the letter \"H\""},
                             Excuse{310, "the letter", "a success"}, Excuse{312, "the error", "a success"}};

/// Every scenario's presentation, saved when the host first checks it, is judged like the live one, but for what is
/// named as not checked.
TEST(Recheck, JudgesASavedPresentationAsTheLiveOne) {
    const host::Library scenarios(SCENARIOS);
    const host::TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "eleve.ppt";
    std::set<std::int32_t> judged;
    for (const std::filesystem::path& path : scenarios.filesOfCourse({})) {
        const host::language::ScenarioFile story = host::load(path);
        const std::int32_t question = story.question;
        const host::Runner runner(story, host::makeEmbeddedWorld);
        for (const host::language::Scenario& scenario : story.scenarios) {
            FirstCheck first;
            (void)runner.run(scenario, [&](host::World& world) { return std::make_unique<Keeper>(world, first); });
            if (!first.saved || !first.reading) {
                continue;
            }
            host::writeContents(file, std::string(first.saved->begin(), first.saved->end()));
            const std::string said =
                printedBy({"recheck", file.string(), "--question", std::to_string(question)}, SCENARIOS);
            const std::string head = "Question " + std::to_string(question) + ": ";
            ASSERT_TRUE(said.starts_with(head));
            const std::string verdict = said.substr(head.size(), said.find('\n') - head.size());
            const std::string live = first.reading->display();
            const bool isExcused = std::any_of(excuses.begin(), excuses.end(), [&](const Excuse& excuse) {
                return excuse.question == question && live.starts_with(excuse.live) &&
                       verdict.starts_with(excuse.ofFile);
            });
            EXPECT_TRUE(verdict == live || isExcused)
                << question << " \"" << automation::toUtf8(scenario.title) << "\": " << verdict << ", live " << live;
            judged.insert(question);
            for (const host::LiveCheck& check : host::liveChecks()) {
                EXPECT_EQ(said.find(check.what) != std::string::npos, check.concerns(question)) << said;
            }
        }
    }
    EXPECT_EQ(judged.size(), scenarios.filesOfCourse({}).size());
}

} // namespace recheck_tests
