#include "tests/trials/command/CostParts.h"

#include "automation/Text.h"
#include "tests/trials/BareClient.h"
#include "tests/trials/ScriptHost.h"
#include "tests/trials/StandIn.h"

#include <algorithm>
#include <functional>
#include <iomanip>
#include <ostream>
#include <sstream>

namespace trials {

namespace {

using cost::Milliseconds;

/// Most that the check may take of the time of the same check as a script.
constexpr double mostOfScript = 0.6;
/// Most that it may take of a bare client's. Where nothing else runs that is 1.05; but whatever runs beside can slow
/// the one more than the other, and so this catches only what is far too much.
constexpr double mostOfClient = 1.25;

/// Somebody who makes the check, and what that takes.
struct Checker {
    const char* who;
    std::function<Milliseconds()> check;
    std::vector<double> milliseconds{};
    RemoteCalls calls{}; ///< of the last round
};

double medianOf(std::vector<double> numbers) {
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}

/// The times of one, each divided by the other's in the same round.
double ratioOf(const Checker& one, const Checker& other) {
    std::vector<double> ratios(one.milliseconds);
    std::transform(ratios.begin(), ratios.end(), other.milliseconds.begin(), ratios.begin(), std::divides<>());
    return medianOf(ratios);
}

/// The letter that the script comes to, and what it takes by its own clock.
std::pair<std::string, Milliseconds> runScriptOf306(const std::filesystem::path& scenarios) {
    std::istringstream said(runScript(scenarios / "../tests/trials/cost/0306.vbs", {u"faire", u"cr\u00E9er"}));
    std::string letter;
    double milliseconds = 0;
    said >> letter >> milliseconds;
    return {letter, Milliseconds(milliseconds)};
}

void print(const Checker& each, std::ostream& out) {
    const RemoteCalls& calls = each.calls;
    const double milliseconds = medianOf(each.milliseconds);
    out << std::left << std::setw(11) << each.who << std::right << std::setw(8) << calls.invokes << std::setw(10)
        << calls.lookUps << std::setw(12) << calls.queries << std::setw(10) << calls.releases << std::setw(8)
        << calls.others << std::fixed << std::setprecision(0) << std::setw(9) << milliseconds << std::setw(11)
        << 1000 * milliseconds / calls.invokes << '\n';
}

} // namespace

bool printBeside(const cost::DeckSize& size, std::size_t rounds, const CommandContext& at) {
    std::ostream& out = at.out;
    out << "Question 306's check: slides " << size.slides << ", text shapes on each " << size.shapesOnSlide
        << ", words in each " << size.wordsInShape << ".\nCalls to PowerPoint's process, and the median of times in "
        << rounds << " round(s):\n\n            Invoke  look-ups  interfaces  releases  others       ms  us/Invoke"
        << std::endl;
    const language::ScenarioFile file = cost::largeDeck(size);
    const Course course(file, at.worlds.embedded);
    const std::vector<trace::RecordedCall> calls = cost::callsOfCheck(file, course, at.worlds.embedded);
    const Expectation* const expected = file.scenarios.front().lastExpectation();
    const WorldPtr world = at.worlds.remote(nullptr);
    Bounds bounds{out};
    cost::withHost(file, course, *world, [&](TrainingHost& host) {
        const automation::LateBound controls = standIn();
        const auto makeCalls = bareClient(calls);
        Checker library{"library", [&] { return timeOf([&] { static_cast<void>(host.check()); }); }};
        Checker client{"bare client", [&] { return timeOf(makeCalls); }};
        Checker script{"script", [&] {
                           const auto said = runScriptOf306(at.library.folder());
                           const std::string letter = automation::toUtf8(host.lastReading().causeErreur);
                           bounds.hold(said.first == letter, "the script judges otherwise");
                           return said.second;
                       }};
        const auto isSlow = [&] { return ratioOf(library, client) > mostOfClient; };
        for (std::size_t i = 0; i < rounds || (i < 3 * rounds && isSlow()); ++i) {
            host.initQuestion(file.question, world->hostFolder());
            for (Checker* const next : {&library, &client, &script}) {
                const RemoteCalls before = remoteCallsOf(controls);
                next->milliseconds.push_back(next->check().count());
                next->calls = remoteCallsOf(controls) - before;
            }
            bounds.hold(expected->matches(host.lastReading()), "the check does not come to " + expected->display());
            host.fermer();
        }
        for (const Checker* const each : {&library, &client, &script}) {
            print(*each, out);
        }
        const double ofScript = ratioOf(library, script);
        out << std::setprecision(3) << "\nThe library takes " << ratioOf(library, client)
            << " of the bare client's time and " << ofScript << " of the script's\n\n";
        bounds.hold(library.calls.lookUps <= client.calls.lookUps, "the library looks more names up than the client");
        library.calls.lookUps = client.calls.lookUps; // in the first round, InitQuestion has met some of the names
        bounds.hold(library.calls == client.calls, "the library makes other calls than the client");
        bounds.hold(!isSlow(), "that is more than 1.25 of the client's");
        bounds.hold(ofScript <= mostOfScript, "that is more than 0.6 of the script's");
    });
    return bounds.isGood;
}

} // namespace trials
