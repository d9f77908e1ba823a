#include "host/bench/LargeDeck.h"
#include "host/bench/LongRun.h"
#include "host/bench/QuestionCost.h"
#include "host/command/Commands.h"

#include <iomanip>
#include <ostream>

namespace host {

namespace {

using bench::OperationCost;
using bench::QuestionCost;

constexpr int timedRuns = 5;

/// Most that the check of the large deck may take, in milliseconds.
constexpr double mostTime = 50;
/// Most that a figure for one word may grow from one deck to the largest.
constexpr double mostCallsGrowth = 1.01;
constexpr double mostTimeGrowth = 2;
/// Most that the memory of a long run may grow after its first tenth.
constexpr double mostMemoryGrowth = 1.05;

/// Microseconds that one call takes on the average.
double microsecondsACall(const QuestionCost& cost) {
    const double time = (cost.initQuestion.time + cost.testePoint.time + cost.fermer.time).count();
    const std::size_t calls = cost.initQuestion.calls + cost.testePoint.calls + cost.fermer.calls;
    return 1000 * time / static_cast<double>(calls);
}

void printQuestions(const std::vector<std::int32_t>& questions, const Library& library, const WorldMaker& makeWorld,
                    std::ostream& out) {
    out << "Calls that leave the module, names of PowerPoint's members among them (each looked up once in a session\n"
           "through COM), and processor time, the shortest of "
        << timedRuns << " runs\n\n"
        << "question  InitQuestion  of which Prepare  TestePoint  Fermer  names  us a call\n";
    std::set<std::u16string> names;
    std::size_t automationCalls = 0;
    for (const std::filesystem::path& path : library.filesOf(questions)) {
        const language::ScenarioFile file = load(path);
        const Course course(file, makeWorld);
        const QuestionCost cost = bench::costOf(file, course, makeWorld, timedRuns);
        out << std::setw(8) << file.question << std::setw(14) << cost.initQuestion.calls << std::setw(18)
            << cost.prepareCalls << std::setw(12) << cost.testePoint.calls << std::setw(8) << cost.fermer.calls
            << std::setw(7) << cost.names.size() << std::fixed << std::setprecision(2) << std::setw(11)
            << microsecondsACall(cost) << std::endl;
        names.insert(cost.names.begin(), cost.names.end());
        automationCalls += cost.automationCalls;
    }
    out << "\nIn one session: " << automationCalls << " automation calls, " << names.size() << " names looked up\n\n";
}

/// True where a figure stays below its bound; says so where it does not.
bool holds(bool isBelow, std::string_view what, std::ostream& out) {
    if (!isBelow) {
        out << "falls short: " << what << '\n';
    }
    return isBelow;
}

bool printGrowth(const WorldMaker& makeWorld, std::ostream& out) {
    out << "Question 306's check on a large deck: 10 text shapes on a slide, 100 words in a shape, each read twice\n\n"
           "slides    words    calls  calls a word  milliseconds  ns a word\n";
    double firstCalls = 0;
    double firstTime = 0;
    bool isGood = true;
    for (const std::size_t times : {1U, 2U, 4U, 8U}) {
        bench::DeckSize size;
        size.slides *= times;
        const language::ScenarioFile file = bench::largeDeck(size);
        const QuestionCost cost = bench::costOf(file, Course(file, makeWorld), makeWorld, timedRuns);
        const auto words = static_cast<double>(size.words());
        const double calls = static_cast<double>(cost.testePoint.calls) / words;
        const double time = cost.testePoint.time.count();
        out << std::setw(6) << size.slides << std::setw(9) << size.words() << std::setw(9) << cost.testePoint.calls
            << std::fixed << std::setprecision(3) << std::setw(14) << calls << std::setprecision(1) << std::setw(14)
            << time << std::setprecision(0) << std::setw(11) << time * 1e6 / words << std::endl;
        const Expectation* const expected = file.scenarios.front().lastExpectation();
        isGood =
            holds(expected->matches(cost.reading), "the check does not come to " + expected->display(), out) && isGood;
        if (times == 1) {
            firstCalls = calls;
            firstTime = time / words;
            isGood = holds(time < mostTime, "the check takes 50 milliseconds or more", out) && isGood;
        }
        isGood = holds(calls <= firstCalls * mostCallsGrowth, "the calls for a word grow", out) && isGood;
        isGood = holds(time / words <= firstTime * mostTimeGrowth, "the time for a word grows", out) && isGood;
    }
    return isGood;
}

bool printLongRun(const BenchRequest& request, const Library& library, const WorldMaker& makeWorld, std::ostream& out,
                  Progress& progress) {
    std::vector<language::ScenarioFile> files;
    for (const std::filesystem::path& path : library.filesOf(request.questions)) {
        files.push_back(load(path));
    }
    std::vector<bench::BuiltCourse> courses;
    courses.reserve(files.size());
    for (const language::ScenarioFile& file : files) {
        courses.push_back({file, Course(file, makeWorld)});
    }
    out << "Questions in one process, with one module and one PowerPoint\n\nquestions  resident kB  live objects\n";
    const std::vector<bench::Holding> holdings = bench::longRun(
        courses, request.runs, makeWorld, [&](std::size_t done) { progress.at("questions", done, request.runs); });
    progress.clear();
    bool isGood = !holdings.empty();
    for (const bench::Holding& holding : holdings) {
        out << std::setw(9) << holding.questions << std::setw(13)
            << (holding.kilobytes ? std::to_string(*holding.kilobytes) : "unknown") << std::setw(14) << holding.objects
            << '\n';
        const bench::Holding& first = holdings.front();
        isGood = holds(holding.objects == first.objects, "objects are left alive", out) && isGood;
        isGood = holds(holding.leftOpen.empty(), "registry keys are left open", out) && isGood;
        isGood = holds(!holding.kilobytes || static_cast<double>(*holding.kilobytes) <=
                                                 static_cast<double>(*first.kilobytes) * mostMemoryGrowth,
                       "memory grows", out) &&
                 isGood;
    }
    return isGood;
}

} // namespace

ExitCode runBench(BenchRequest request, const Library& library, const WorldMaker& makeWorld, std::ostream& out,
                  Progress& progress) {
    if (request.questions.empty()) {
        request.questions = Library::questions();
    }
    if (request.runs != 0) {
        return printLongRun(request, library, makeWorld, out, progress) ? ExitCode::Good : ExitCode::FellShort;
    }
    printQuestions(request.questions, library, makeWorld, out);
    return printGrowth(makeWorld, out) ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace host
