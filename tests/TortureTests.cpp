#include "host/command/Library.h"
#include "host/torture/Torture.h"
#include "host/world/EmbeddedWorld.h"

#include <gtest/gtest.h>

namespace {

using host::torture::Answer;
using host::torture::Call;
using host::torture::Fault;

const host::WorldMaker makeWorld = host::makeEmbeddedWorld;

/// A judge must find fault with what is wrong, or the torture could not fail.
TEST(TortureTests, JudgeFindsWhatIsWrong) {
    using automation::Border;
    using automation::Error;
    using Lasting = Fault::Lasting;
    const host::torture::Operation begin{host::HostCall::InitQuestion, host::torture::Operation::Arrival::Brought};
    const host::torture::Aftermath flawless;
    const host::torture::Judge judge(306, begin, flawless);
    const Fault busy{Fault::Kind::Busy, Lasting::Once};
    const Call prepare{Border::Automation, u"Slide.Tags", true};
    const Call other{Border::Automation, u"Application.WindowState"};
    const Call file{Border::File, u"Files.rename"};
    const auto report = [&](std::u16string_view owner, std::u16string_view service, std::int32_t number) {
        return Error(number,
                     u"DLL K61027 - CLASSE " + std::u16string(owner) + u"\n\r - SERVICE " + std::u16string(service) +
                         u" - OBJET " + busy.error().source(),
                     u"");
    };
    const std::int32_t number = busy.error().number();

    struct Case {
        Call call;
        std::optional<Error> error;
        bool isRight;
    };
    const std::vector<Case> cases = {
        {prepare, report(u"Question0306", u"Prepare", number), true},
        {prepare, report(u"Question0306", u"Prepare", 5), false},
        {prepare, report(u"Question0307", u"Prepare", number), false},
        {prepare, report(u"Module", u"Nettoyage", number), false},
        {prepare, busy.error(), false},
        {prepare, std::nullopt, false},
        {other, busy.error(), true},
        {other, std::nullopt, true},
        {other, report(u"Module", u"Nettoyage", number), true},
        {other, report(u"Module", u"Fermer", number), false},
        {other, Error(number, u"elsewhere", u""), false},
        {file, busy.error(), false},
    };
    for (const Case& one : cases) {
        host::torture::Aftermath aftermath;
        aftermath.error = one.error;
        EXPECT_EQ(judge.findings(aftermath, one.call, busy).empty(), one.isRight)
            << (one.error ? one.error->what() : "silence");
    }
    const Fault late{Fault::Kind::Late, Lasting::Once};
    host::torture::Aftermath raised;
    raised.error = busy.error();
    EXPECT_TRUE(judge.findings(flawless, prepare, late).empty());
    EXPECT_EQ(judge.findings(raised, other, late).size(), 1U);
    EXPECT_EQ(judge.findings(raised, other, Fault{Fault::Kind::Dies, Lasting::FromThereOn}).size(), 1U);

    host::torture::Aftermath lost;
    lost.findings = {"lost"};
    lost.bars = {"moved"};
    lost.powerPointEnded = true;
    EXPECT_EQ(judge.findings(lost, other, busy).size(), 3U);
}

TEST(TortureTests, ASampleOfOneQuestionsCallsComesThrough) {
    const host::language::ScenarioFile file = host::load(host::Library(SCENARIOS).fileOf(313));
    std::mt19937 random(1);
    const host::torture::Torture torture(file, makeWorld, 60, random);
    host::torture::Totals totals;
    torture.run(
        totals, [](const std::string& finding) { ADD_FAILURE() << finding; }, [](const auto&, auto, auto) {});
    EXPECT_GT(totals.failed, 50U);
    for (const Answer answer : {Answer::Reported, Answer::Straight, Answer::Silence}) {
        EXPECT_NE(totals.outcomes.at(static_cast<std::size_t>(answer)), 0U);
    }
}

} // namespace
