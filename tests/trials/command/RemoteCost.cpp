#include "tests/trials/command/CostParts.h"

#include <iomanip>
#include <ostream>

namespace trials {

namespace {

using cost::Milliseconds;
using cost::QuestionCost;

/// The size of the smallest deck.
constexpr cost::DeckSize smallDeck{1, 5, 20};

void printFirstAnswer(const language::ScenarioFile& file, const Worlds& worlds, std::ostream& out) {
    const Course course(file, worlds.embedded);
    const WorldPtr world = worlds.remote(nullptr);
    Milliseconds load{};
    Milliseconds first{};
    cost::withHost(file, course, *world, [&](TrainingHost& host) {
        load = timeOf([&] { static_cast<void>(world->module()); });
        first = timeOf([&] { host.initQuestion(file.question, world->hostFolder()); });
        host.fermer();
    });
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

} // namespace

bool printRemoteCosts(const CostRequest& request, const CommandContext& at) {
    if (request.rounds != 0) {
        return printBeside(smallDeck, request.rounds, at);
    }
    printFirstAnswer(load(at.library.filesOfCourse(request.questions).front()), at.worlds, at.out);
    bool isGood = printRemoteQuestions(request, at);
    cost::DeckSize size;
    size.slides = request.slides.value_or(size.slides);
    isGood = printBeside(size, 1, at) && isGood;
    at.out << "The same check on growing decks: 5 text shapes on a slide, 20 words in a shape\n\n";
    const auto costOf = [&](const language::ScenarioFile& file, std::size_t /*times*/) {
        return cost::remoteCostOf(file, Course(file, at.worlds.embedded), at.worlds.remote);
    };
    return printGrowth(smallDeck, costOf, at.out) && isGood;
}

} // namespace trials
