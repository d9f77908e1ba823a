#include "host/command/Library.h"
#include "host/world/EmbeddedWorld.h"
#include "tests/trials/pairs/PairTrial.h"
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
using trials::torture::Outcome;
using trials::trace::Phase;
using Lasting = Fault::Lasting;

Outcome raising(const Error& error) {
    Outcome outcome;
    outcome.error = error;
    return outcome;
}

Outcome reporting(const std::u16string& place, const std::u16string& object, std::int32_t number) {
    return raising(Error(number, u"DLL K61027 - CLASSE " + place + u" - OBJET " + object, u""));
}

Outcome reading(std::u16string_view letter, bool isGeneral) {
    Outcome outcome;
    outcome.reading.emplace();
    outcome.reading->causeErreur = letter;
    outcome.reading->erreurGenerale = isGeneral;
    return outcome;
}

/// A checker must find fault with what is wrong, or the torture could not fail: of many answers to a failed call each
/// but the one prescribed is wrong. A fault that lasts strikes on until it is noticed.
TEST(TortureTests, CheckerDemandsWhatIsPrescribed) {
    const Fault busy{Fault::Kind::Busy, Lasting::Once};
    const Fault deaf{Fault::Kind::Busy, Lasting::FromThereOn};
    const Fault late{Fault::Kind::Late, Lasting::Once};
    const Fault denied{Fault::Kind::AccessDenied, Lasting::Once};
    const std::int32_t number = busy.error().number();
    const std::u16string& source = busy.error().source();
    const std::u16string& description = busy.error().description();
    const std::u16string key = u"HKEY_CURRENT_USER\\SOFTWARE\\Default";
    const std::u16string noKey = u"Impossible d'accéder en lecture-écriture à la clé de base de registre\n\r" + key;
    constexpr auto registryError = static_cast<std::int32_t>(0x800403E8U);
    const std::vector<std::pair<std::string, Outcome>> answers = {
        {"silence", reading(u"", false)},
        {"straight", raising(busy.error())},
        {"from elsewhere", raising(Error(number, u"elsewhere", u""))},
        {"obtaining", reporting(u"Module\n\r - SERVICE GetApplication", description, number)},
        {"cleaning", reporting(u"Module\n\r - SERVICE Nettoyage", description, number)},
        {"with the source", reporting(u"Module\n\r - SERVICE Nettoyage", source, number)},
        {"staging", reporting(u"Module\n\r - SERVICE Renomme", denied.error().description(), denied.error().number())},
        {"preparing", reporting(u"Question0306\n\r - SERVICE Prepare", source, number)},
        {"with 5", reporting(u"Question0306\n\r - SERVICE Prepare", source, 5)},
        {"of 307", reporting(u"Question0307\n\r - SERVICE Prepare", source, number)},
        {"checking", reporting(u"Question0306\n\r - SERVICE TestePoint", source, number)},
        {"pointing", reporting(u"Module\n\r - SERVICE ChangeDir", noKey, registryError)},
        {"restoring", reporting(u"Module\n\r - SERVICE RestaureParamUser", noKey, registryError)},
        {"of another key", reporting(u"Module\n\r - SERVICE RestaureParamUser", noKey + u"2", registryError)},
        {"AK", reading(u"AK", true)},
        {"%AL", reading(u"%AL", true)},
        {"AM", reading(u"AM", true)},
        {"the letter A", reading(u"A", false)},
        {"the letter B", reading(u"B", false)},
    };
    struct Case {
        HostCall operation;
        std::vector<Call> route; ///< whose first call fails
        Fault fault;
        std::string right;
    };
    const Call asking{Border::Automation, Phase::Asking};
    const Call closing{Border::Automation, Phase::Returning};
    const std::vector<Case> cases = {
        {HostCall::InitQuestion, {{Border::Automation, Phase::Obtaining, u"create"}}, busy, "obtaining"},
        {HostCall::InitQuestion, {{Border::Automation, Phase::Obtaining, u"attach"}}, busy, "silence"},
        {HostCall::InitQuestion, {{Border::Automation, Phase::Cleaning}}, busy, "cleaning"},
        {HostCall::InitQuestion, {{Border::File, Phase::Cleaning, u"remove"}}, denied, "silence"},
        {HostCall::InitQuestion, {{Border::File, Phase::Staging, u"rename"}}, denied, "staging"},
        {HostCall::InitQuestion, {{Border::Automation, Phase::Preparing}}, busy, "preparing"},
        {HostCall::InitQuestion, {{Border::Registry, Phase::Pointing, u"open", {}, key}}, denied, "pointing"},
        {HostCall::TestePoint, {{Border::Window, Phase::Looking, u"isVisible"}}, denied, "AK"},
        {HostCall::TestePoint, {asking}, deaf, "%AL"},
        {HostCall::TestePoint, {asking}, late, "silence"},
        {HostCall::TestePoint, {{Border::Window, Phase::Fronting, u"findWindow"}}, denied, "AM"},
        {HostCall::TestePoint, {{Border::Automation, Phase::Examining}}, deaf, "straight"},
        {HostCall::TestePoint, {{Border::Automation, Phase::Checking}}, busy, "checking"},
        {HostCall::TestePoint, {{Border::File, Phase::Checking, u"find", u"Plan exo 3.*"}}, denied, "the letter A"},
        {HostCall::TestePoint, {{Border::File, Phase::Checking, u"find", u"Plan exo 3.rtf"}}, denied, "the letter B"},
        {HostCall::Fermer, {closing, {Border::Automation, Phase::Cleaning}}, busy, "silence"},
        {HostCall::Fermer, {closing, {Border::Automation, Phase::Cleaning}}, deaf, "cleaning"},
        {HostCall::Fermer, {{Border::Registry, Phase::Restoring, u"open", {}, key}}, denied, "restoring"},
        {HostCall::Fermer, {{Border::Registry, Phase::Restoring, u"set", {}, key}}, denied, "silence"},
    };
    const Outcome flawless = reading(u"", false);
    for (const auto& [operation, route, fault, right] : cases) {
        const Checker checker(306, {operation, {}}, flawless, route);
        for (const auto& [name, answer] : answers) {
            EXPECT_EQ(checker.assess(answer, 0, fault).findings.empty(), name == right)
                << "phase " << static_cast<int>(route.front().phase) << ", " << fault.display() << ", " << name;
        }
    }

    Outcome lost = flawless;
    lost.findings = {"lost"};
    lost.bars = {"moved"};
    lost.isStruck = false;
    lost.powerPointEnded = true;
    const Checker checker(306, {HostCall::Fermer, {}}, flawless, {&closing, 1});
    EXPECT_EQ(checker.assess(lost, 0, deaf).findings.size(), 4U);
}

/// Of two failures either may be told, in its own way; a verdict that nobody knows, silence about what the first alone
/// has led to, and anything lost are wrong.
TEST(TortureTests, PairsDemandAKnownAnswer) {
    using trials::pairs::Aftermath;
    const Fault busy{Fault::Kind::Busy, Lasting::Once};
    const std::array<trials::pairs::Trouble, 2> troubles{{{busy, false, 1}, {std::nullopt, true, 2}}};
    const auto findings = [&](const Outcome& both, const Outcome& alone) {
        const Aftermath flawless{reading(u"", false), {}, {}, {}};
        return assess({both, {}, {}, {}}, {alone, {}, {}, {}}, flawless, troubles, {HostCall::TestePoint, {}})
            .findings.size();
    };
    const Outcome silent = reading(u"", false);
    const Outcome told = raising(busy.error());
    Outcome lost = silent;
    lost.findings = {"lost"};
    lost.bars = {"moved"};
    lost.isStruck = false;
    lost.powerPointEnded = true;
    const std::vector<std::tuple<Outcome, Outcome, std::size_t>> cases{
        {silent, silent, 0},
        {told, silent, 0},
        {told, told, 0},
        {raising(Error(automation::RunTimeError::OutOfMemory)), told, 0},
        {reading(u"%AL", true), silent, 0},
        {silent, told, 1},
        {raising(Error(automation::RunTimeError::ObjectNotSet)), silent, 1},
        {reading(u"B", true), silent, 1},
        {reading(u"Q", false), silent, 1},
        {lost, silent, 4},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const auto& [both, alone, wrong] = cases[i];
        EXPECT_EQ(findings(both, alone), wrong) << "case " << i;
    }
}

/// Every operation of every question goes along its expected trace, and a sample of one question's failed calls comes
/// through.
TEST(TortureTests, FindsNothing) {
    constexpr std::size_t none = 1U << 30U;
    std::mt19937 random(1);
    trials::torture::Totals totals;
    for (const std::filesystem::path& path : host::Library(SCENARIOS).filesOfCourse({})) {
        const host::language::ScenarioFile file = host::load(path);
        trials::torture::Torture(file, host::makeEmbeddedWorld, file.question == 313 ? 60 : none, random)
            .run({file.question, totals, [](const std::string& finding) { ADD_FAILURE() << finding; },
                  [](const auto&, auto, auto) {}});
    }
    for (const Answer answer : {Answer::Reported, Answer::Straight, Answer::Silence}) {
        EXPECT_NE(totals.outcomes.at(static_cast<std::size_t>(answer)), 0U);
    }
}

} // namespace torture_tests
