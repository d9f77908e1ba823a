#include "host/command/Library.h"
#include "host/world/EmbeddedWorld.h"
#include "tests/trials/torture/Torture.h"

#include <gtest/gtest.h>

namespace torture_tests {

using automation::Border;
using automation::Error;
using host::HostCall;
using trials::torture::Answer;
using trials::torture::Call;
using trials::torture::Checker;
using trials::torture::Fault;
using trials::trace::Phase;
using Lasting = Fault::Lasting;

const host::WorldMaker makeWorld = host::makeEmbeddedWorld;

Error reported(std::u16string_view owner, std::u16string_view service, std::u16string_view object,
               std::int32_t number) {
    std::u16string source = u"DLL K61027 - CLASSE ";
    source.append(owner).append(u"\n\r - SERVICE ").append(service).append(u" - OBJET ").append(object);
    return Error(number, source, u"");
}

/// A checker must find fault with what is wrong, or the torture could not fail: where every call of an operation is
/// refused once, each answer but the one prescribed for that step is wrong.
TEST(TortureTests, CheckerDemandsWhatIsPrescribedForEachStep) {
    const Fault busy{Fault::Kind::Busy, Lasting::Once};
    const Fault denied{Fault::Kind::AccessDenied, Lasting::Once};
    const std::int32_t number = busy.error().number();
    const std::u16string& source = busy.error().source();
    const std::u16string& description = busy.error().description();
    const std::u16string key = u"HKEY_CURRENT_USER\\SOFTWARE\\Default";
    const std::u16string noKey = u"Impossible d'accéder en lecture-écriture à la clé de base de registre\n\r" + key;
    constexpr auto registryError = static_cast<std::int32_t>(0x800403E8U);
    const std::vector<std::optional<Error>> answers = {
        std::nullopt,
        busy.error(),
        Error(number, u"elsewhere", u""),
        reported(u"Module", u"GetApplication", description, number),
        reported(u"Module", u"InitQuestion", noKey, registryError),
        reported(u"Module", u"Nettoyage", description, number),
        reported(u"Module", u"Nettoyage", source, number),
        reported(u"Module", u"Renomme", denied.error().description(), denied.error().number()),
        reported(u"Question0306", u"Prepare", source, number),
        reported(u"Question0306", u"Prepare", source, 5),
        reported(u"Question0307", u"Prepare", source, number),
        reported(u"Question0306", u"TestePoint", source, number),
        reported(u"Module", u"ChangeDir", noKey, registryError),
        reported(u"Module", u"RestaureParamUser", noKey, registryError),
        reported(u"Module", u"RestaureParamUser", noKey + u"2", registryError),
        Error(registryError, noKey, u""),
        reported(u"Module", u"RestaureParamUser", description, number),
    };
    constexpr std::size_t silence = 0;
    constexpr std::size_t straight = 1;
    struct Case {
        HostCall operation;
        Call call;
        std::size_t right; ///< of the answers
    };
    const std::vector<Case> cases = {
        {HostCall::InitQuestion, {Border::Automation, Phase::Obtaining, u"create"}, 3},
        {HostCall::InitQuestion, {Border::Automation, Phase::Obtaining, u"attach"}, silence},
        {HostCall::InitQuestion, {Border::Automation, Phase::Saving}, 16},
        {HostCall::InitQuestion, {Border::Registry, Phase::Saving, u"query", {}, key}, 13},
        {HostCall::InitQuestion, {Border::Registry, Phase::Creating, u"open", {}, key}, 4},
        {HostCall::InitQuestion, {Border::Registry, Phase::Creating, u"close", {}, key}, silence},
        {HostCall::InitQuestion, {Border::Automation, Phase::Cleaning}, 5},
        {HostCall::InitQuestion, {Border::File, Phase::Cleaning, u"remove"}, silence},
        {HostCall::InitQuestion, {Border::File, Phase::Staging, u"rename"}, 7},
        {HostCall::InitQuestion, {Border::Automation, Phase::Arranging}, silence},
        {HostCall::InitQuestion, {Border::Automation, Phase::Tooltips}, straight},
        {HostCall::InitQuestion, {Border::Automation, Phase::Preparing}, 8},
        {HostCall::InitQuestion, {Border::Registry, Phase::Pointing, u"open", {}, key}, 12},
        {HostCall::InitQuestion, {Border::Automation, Phase::Startup}, silence},
        {HostCall::InitQuestion, {Border::Automation, Phase::Fronting}, straight},
        {HostCall::TestePoint, {Border::Automation, Phase::Fronting}, straight},
        {HostCall::TestePoint, {Border::Automation, Phase::Examining}, straight},
        {HostCall::TestePoint, {Border::Automation, Phase::Checking}, 11},
        {HostCall::Fermer, {Border::Automation, Phase::Closing}, silence},
        {HostCall::Fermer, {Border::Automation, Phase::Asking}, silence},
        {HostCall::Fermer, {Border::Automation, Phase::Cleaning}, 5},
        {HostCall::Fermer, {Border::Registry, Phase::Restoring, u"open", {}, key}, 13},
        {HostCall::Fermer, {Border::Registry, Phase::Restoring, u"set", {}, key}, silence},
        {HostCall::Quitter, {Border::Automation, Phase::Ending, u"Quit"}, straight},
    };
    const trials::torture::Outcome flawless;
    for (const auto& [operation, call, right] : cases) {
        const std::vector<Call> route{call};
        const Checker checker(306, {operation, {}}, flawless, route);
        for (std::size_t i = 0; i < answers.size(); ++i) {
            trials::torture::Outcome outcome;
            outcome.error = answers[i];
            const Fault& fault = call.border == Border::Automation ? busy : denied;
            EXPECT_EQ(checker.assess(outcome, 0, fault).findings.empty(), i == right)
                << "phase " << static_cast<int>(call.phase) << ", answer " << i;
        }
    }
}

/// A fault that lasts strikes on until it is noticed; a check answers by a code where PowerPoint cannot be reached.
TEST(TortureTests, CheckerFollowsAFaultAndSeesWhatIsLost) {
    const std::vector<Call> route{{Border::Window, Phase::Looking, u"isVisible"},
                                  {Border::Automation, Phase::Asking},
                                  {Border::Window, Phase::Fronting, u"findWindow"},
                                  {Border::Automation, Phase::Examining},
                                  {Border::Automation, Phase::Checking}};
    const host::Reading right;
    const auto code = [](std::u16string_view text) {
        host::Reading reading;
        reading.erreurGenerale = true;
        reading.causeErreur = text;
        return reading;
    };
    const Fault denied{Fault::Kind::AccessDenied, Lasting::Once};
    const Fault deaf{Fault::Kind::Busy, Lasting::FromThereOn};
    const Fault late{Fault::Kind::Late, Lasting::Once};
    trials::torture::Outcome flawless;
    flawless.reading = right;
    const Checker checker(306, {HostCall::TestePoint, {}}, flawless, route);
    struct Case {
        std::size_t position;
        host::Reading reading;
        Fault fault;
        bool isRight;
    };
    const std::vector<Case> cases = {
        {0, code(u"AK"), denied, true}, {0, code(u"%AL"), denied, false}, {0, right, denied, false},
        {1, code(u"%AL"), deaf, true},  {1, code(u"AM"), deaf, false},    {2, code(u"AM"), denied, true},
        {3, code(u"%AL"), deaf, false}, {1, right, late, true},           {3, code(u"A"), late, false},
    };
    for (const auto& [position, reading, fault, isRight] : cases) {
        trials::torture::Outcome outcome;
        outcome.reading = reading;
        EXPECT_EQ(checker.assess(outcome, position, fault).findings.empty(), isRight)
            << position << ", " << fault.display() << ", " << reading.display();
    }

    const std::vector<Call> searching{{Border::File, Phase::Checking, u"find", u"Files.find(\"Plan exo 3.*\", 6)"},
                                      {Border::File, Phase::Checking, u"find", u"Files.find(\"Plan exo 3.rtf\", 6)"}};
    const Checker ofSearch(304, {HostCall::TestePoint, {}}, flawless, searching);
    for (const std::size_t position : {0U, 1U}) {
        for (const auto* const letter : {u"", u"A", u"B", u"C"}) {
            trials::torture::Outcome outcome;
            outcome.reading = right;
            outcome.reading->causeErreur = letter;
            EXPECT_EQ(ofSearch.assess(outcome, position, denied).findings.empty(),
                      letter == std::u16string(position == 0 ? u"A" : u"B"))
                << position << ", " << outcome.reading->display();
        }
    }

    const std::vector<Call> closing{{Border::Automation, Phase::Returning},
                                    {Border::Registry, Phase::Restoring, u"open", {}, u"K"}};
    const trials::torture::Outcome silent;
    const Checker ofClosing(306, {HostCall::Fermer, {}}, silent, closing);
    EXPECT_TRUE(ofClosing.assess(silent, 0, deaf).findings.empty());
    EXPECT_EQ(ofClosing.assess(silent, 1, {Fault::Kind::AccessDenied, Lasting::FromThereOn}).findings.size(), 1U);

    trials::torture::Outcome lost;
    lost.findings = {"lost"};
    lost.bars = {"moved"};
    lost.isStruck = false;
    lost.powerPointEnded = true;
    EXPECT_EQ(ofClosing.assess(lost, 0, deaf).findings.size(), 4U);
    EXPECT_EQ(ofClosing.assess(lost, 1, denied).findings.size(), 5U) << "windows could be asked";
}

/// Where no call is made to fail, what is left is the operations as they go, along their expected traces.
TEST(TortureTests, OperationsMakeTheCallsOfTheirExpectedTracesInOrder) {
    std::mt19937 random(1);
    for (const std::filesystem::path& path : host::Library(SCENARIOS).filesOfCourse({})) {
        const host::language::ScenarioFile file = host::load(path);
        constexpr std::size_t none = 1U << 30U;
        trials::torture::Totals totals;
        trials::torture::Torture(file, makeWorld, none, random)
            .run(
                totals, [](const std::string& finding) { ADD_FAILURE() << finding; }, [](const auto&, auto, auto) {});
        EXPECT_EQ(totals.failed, 0U);
    }
}

TEST(TortureTests, ASampleOfOneQuestionsCallsComesThrough) {
    const host::language::ScenarioFile file = host::load(host::Library(SCENARIOS).fileOf(313));
    std::mt19937 random(1);
    const trials::torture::Torture torture(file, makeWorld, 60, random);
    trials::torture::Totals totals;
    torture.run(
        totals, [](const std::string& finding) { ADD_FAILURE() << finding; }, [](const auto&, auto, auto) {});
    EXPECT_GT(totals.failed, 50U);
    for (const Answer answer : {Answer::Reported, Answer::Straight, Answer::Silence}) {
        EXPECT_NE(totals.outcomes.at(static_cast<std::size_t>(answer)), 0U);
    }
}

} // namespace torture_tests
