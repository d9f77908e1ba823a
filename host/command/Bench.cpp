#include "host/bench/LargeDeck.h"
#include "host/bench/LongRun.h"
#include "host/bench/QuestionCost.h"
#include "host/command/BenchParts.h"

#include <iomanip>
#include <ostream>

namespace host {

namespace {

using bench::OperationCost;
using bench::QuestionCost;

constexpr int timedRuns = 5;

/// Most that the check of the large deck may take, in milliseconds.
constexpr double mostTime = 50;
/// Most that the memory of a long run may grow after its first tenth.
constexpr double mostMemoryGrowth = 1.05;
/// Most handles that may come after its first tenth: the system opens some of its own in time.
constexpr std::size_t mostNewHandles = 4;

/// Microseconds that one call takes on the average.
double microsecondsACall(const QuestionCost& cost) {
    const std::size_t calls = cost.initQuestion.calls + cost.testePoint.calls + cost.fermer.calls;
    return 1000 * cost.time().count() / static_cast<double>(calls);
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
        automationCalls += cost.automationCalls();
    }
    out << "\nIn one session: " << automationCalls << " automation calls, " << names.size() << " names looked up\n\n";
}

bool printLargeDeck(const WorldMaker& makeWorld, std::ostream& out) {
    out << "Question 306's check on a large deck: 10 text shapes on a slide, 100 words in a shape, each read twice\n\n";
    bool isGood = true;
    const bool isFlat = printGrowth(
        {},
        [&](const language::ScenarioFile& file, std::size_t times) {
            const QuestionCost cost = bench::costOf(file, Course(file, makeWorld), makeWorld, timedRuns);
            const bool isShort = times != 1 || cost.testePoint.time.count() < mostTime;
            isGood = holds(isShort, "the check takes 50 milliseconds or more", out) && isGood;
            return cost;
        },
        out);
    return isFlat && isGood;
}

bool printLongRun(const BenchRequest& request, const Library& library, const Worlds& worlds, std::ostream& out) {
    std::vector<language::ScenarioFile> files;
    for (const std::filesystem::path& path : library.filesOf(request.questions)) {
        files.push_back(load(path));
    }
    std::vector<bench::BuiltCourse> courses;
    courses.reserve(files.size());
    for (const language::ScenarioFile& file : files) {
        courses.push_back({file, Course(file, worlds.embedded)});
    }
    out << "Questions in one process, with one module and one PowerPoint\n\n"
           "questions  resident kB  handles  live objects"
        << std::endl;
    const std::vector<bench::Holding> holdings =
        bench::longRun(courses, request.runs, worlds.remote ? worlds.remote : worlds.embedded);
    const auto shown = [](const std::optional<std::size_t>& figure) {
        return figure ? std::to_string(*figure) : "unknown";
    };
    bool isGood = !holdings.empty();
    for (const bench::Holding& holding : holdings) {
        out << std::setw(9) << holding.questions << std::setw(13) << shown(holding.use.kilobytes) << std::setw(9)
            << shown(holding.use.handles) << std::setw(14) << holding.objects << '\n';
        const bench::Holding& first = holdings.front();
        isGood = holds(holding.objects == first.objects, "objects are left alive", out) && isGood;
        isGood = holds(holding.use.handles.value_or(0) <= first.use.handles.value_or(0) + mostNewHandles,
                       "handles are left open", out) &&
                 isGood;
        isGood = holds(static_cast<double>(holding.use.kilobytes.value_or(0)) <=
                           static_cast<double>(first.use.kilobytes.value_or(0)) * mostMemoryGrowth,
                       "memory grows", out) &&
                 isGood;
        for (const std::string& open : holding.leftOpen) {
            isGood = holds(false, open, out);
        }
    }
    return isGood;
}

} // namespace

ExitCode runBench(BenchRequest request, const Library& library, const Worlds& worlds, std::ostream& out) {
    if (request.questions.empty()) {
        request.questions = Library::questions();
    }
    if (request.runs != 0) {
        return printLongRun(request, library, worlds, out) ? ExitCode::Good : ExitCode::FellShort;
    }
    if (worlds.remote) {
        return printRemoteCosts(request, library, worlds, out) ? ExitCode::Good : ExitCode::FellShort;
    }
    printQuestions(request.questions, library, worlds.embedded, out);
    return printLargeDeck(worlds.embedded, out) ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace host
