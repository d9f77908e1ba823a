#include "tests/trials/command/CostParts.h"

#include "automation/Text.h"
#include "tests/trials/ScriptHost.h"
#include "tests/trials/StandIn.h"

#include <iomanip>
#include <ostream>
#include <sstream>

namespace trials {

namespace {

using cost::Milliseconds;
using cost::QuestionCost;

/// Most that the check may take of the time of the same check as a script.
constexpr double mostOfScript = 0.6;

/// What a script says of its check.
struct ScriptRun {
    std::string letter;
    double milliseconds = 0;
    std::size_t calls = 0;
    std::size_t lookUps = 0;
};

template <typename Step> Milliseconds timeOf(const Step& step) {
    const auto begun = std::chrono::steady_clock::now();
    step();
    return std::chrono::steady_clock::now() - begun;
}

void printFirstAnswer(const language::ScenarioFile& file, const Worlds& worlds, std::ostream& out) {
    const Course course(file, worlds.embedded);
    const WorldPtr world = worlds.remote(nullptr);
    world->powerPoint().start();
    Witness nobody;
    TrainingHost host(*world, course, file.question, nobody);
    host.application = world->powerPoint().application();
    host.window = world->powerPoint().window();
    const Milliseconds load = timeOf([&] { static_cast<void>(world->module()); });
    const Milliseconds first = timeOf([&] { host.initQuestion(file.question, world->hostFolder()); });
    host.fermer();
    host.quitter();
    out << std::fixed << std::setprecision(1) << "The library loaded and its module created in " << load.count()
        << " ms; question " << file.question << "'s InitQuestion answers " << first.count() << " ms later\n\n";
}

bool printRemoteQuestions(const CostRequest& request, const CommandContext& at) {
    std::ostream& out = at.out;
    out << "Calls that reach PowerPoint, names looked up in them and names that they state, and time by the clock\n\n"
           "question  InitQuestion  TestePoint  Fermer  look-ups  names  ms InitQuestion  ms TestePoint  us a call"
        << std::endl;
    Bounds bounds{out};
    for (const std::filesystem::path& path : at.library.filesOfCourse(request.questions)) {
        const language::ScenarioFile file = load(path);
        const Course course(file, at.worlds.embedded);
        const QuestionCost here = cost::costOf(file, course, at.worlds.embedded, 0);
        const QuestionCost cost = cost::remoteCostOf(file, course, at.worlds.remote);
        out << std::setw(8) << file.question << std::setw(14) << cost.initQuestion.calls << std::setw(12)
            << cost.testePoint.calls << std::setw(8) << cost.fermer.calls << std::setw(10) << cost.lookUps()
            << std::setw(7) << here.names.size() << std::fixed << std::setprecision(1) << std::setw(17)
            << cost.initQuestion.time.count() << std::setw(15) << cost.testePoint.time.count() << std::setprecision(0)
            << std::setw(11) << 1000 * cost.time().count() / static_cast<double>(cost.automationCalls()) << std::endl;
        const bool isSame = cost.initQuestion.calls == here.initQuestion.automationCalls &&
                            cost.testePoint.calls == here.testePoint.automationCalls &&
                            cost.fermer.calls == here.fermer.automationCalls;
        bounds.hold(isSame, "not as many calls as in this process");
        bounds.hold(cost.lookUps() <= here.names.size(), "a name is looked up twice");
    }
    return bounds.isGood;
}

ScriptRun runCheck(const std::filesystem::path& script) {
    ScriptRun run{{}, 0, countOfStandIn(u"Calls"), countOfStandIn(u"LookUps")};
    std::istringstream said(runScript(script, {u"faire", u"cr\u00E9er"}));
    said >> run.letter >> run.milliseconds;
    run.calls = countOfStandIn(u"Calls") - run.calls;
    run.lookUps = countOfStandIn(u"LookUps") - run.lookUps;
    return run;
}

bool printBesideScript(const CostRequest& request, const CommandContext& at) {
    std::ostream& out = at.out;
    cost::DeckSize size;
    size.slides = request.slides.value_or(size.slides);
    out << "\nQuestion 306's check on a deck of " << size.slides << " slides, " << size.shapesOnSlide
        << " text shapes on a slide, " << size.wordsInShape
        << " words in a shape, beside the same check as a script\n\n"
        << "          calls  look-ups  milliseconds  us a call" << std::endl;
    const language::ScenarioFile file = cost::largeDeck(size);
    const auto print = [&](const char* who, std::size_t calls, std::size_t lookUps, double milliseconds) {
        out << who << std::setw(7) << calls << std::setw(10) << lookUps << std::fixed << std::setprecision(0)
            << std::setw(14) << milliseconds << std::setw(11) << 1000 * milliseconds / static_cast<double>(calls)
            << std::endl;
    };
    ScriptRun script;
    const QuestionCost cost = cost::remoteCostOf(file, Course(file, at.worlds.embedded), at.worlds.remote, [&] {
        script = runCheck(at.library.folder() / "../tests/trials/cost/0306.vbs");
    });
    print("library ", cost.testePoint.calls, cost.lookUps(), cost.testePoint.time.count());
    print("script  ", script.calls, script.lookUps, script.milliseconds);
    const double ratio = cost.testePoint.time.count() / script.milliseconds;
    out << std::setprecision(2) << "the library takes " << ratio << " of the script's time\n\n";
    const Expectation* const expected = file.scenarios.front().lastExpectation();
    Bounds bounds{out};
    bounds.hold(expected->matches(cost.reading), "the check does not come to " + expected->display());
    bounds.hold(script.letter == automation::toUtf8(cost.reading.causeErreur), "the script judges otherwise");
    bounds.hold(ratio <= mostOfScript, "that is more than 0.6");
    return bounds.isGood;
}

} // namespace

bool printRemoteCosts(const CostRequest& request, const CommandContext& at) {
    printFirstAnswer(load(at.library.filesOfCourse(request.questions).front()), at.worlds, at.out);
    bool isGood = printRemoteQuestions(request, at);
    isGood = printBesideScript(request, at) && isGood;
    at.out << "The same check on growing decks: 5 text shapes on a slide, 20 words in a shape\n\n";
    const auto costOf = [&](const language::ScenarioFile& file, std::size_t /*times*/) {
        return cost::remoteCostOf(file, Course(file, at.worlds.embedded), at.worlds.remote);
    };
    return printGrowth({1, 5, 20}, costOf, at.out) && isGood;
}

} // namespace trials
