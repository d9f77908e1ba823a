#include "host/command/Options.h"
#include "tests/trials/command/CostParts.h"
#include "tests/trials/cost/LargeDeck.h"
#include "tests/trials/cost/LongRun.h"
#include "tests/trials/cost/QuestionCost.h"

#include <iomanip>
#include <ostream>

namespace trials {

namespace {

using cost::QuestionCost;

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

/// Calls measured and calls prescribed, with those that keep the bars.
std::string against(std::size_t measured, const cost::PrescribedCalls& prescribed) {
    return std::to_string(measured) + '/' + std::to_string(prescribed.calls) +
           (prescribed.keeping == 0 ? "" : '+' + std::to_string(prescribed.keeping));
}

bool printQuestions(const CostRequest& request, const CommandContext& at) {
    std::ostream& out = at.out;
    const WorldMaker& makeWorld = at.worlds.embedded;
    out << "Calls that leave the module, measured/prescribed+those that keep the learner's bars as they were; names "
           "of\n"
           "PowerPoint's members among them, each looked up once in a session through COM; processor time, the "
           "shortest of "
        << timedRuns << " runs\n\n"
        << "question  InitQuestion  of which Prepare  TestePoint      Fermer  names  us a call\n";
    std::set<std::u16string> names;
    std::size_t automationCalls = 0;
    Bounds bounds{out};
    for (const std::filesystem::path& path : at.library.filesOfCourse(request.questions)) {
        const language::ScenarioFile file = load(path);
        const Course course(file, makeWorld);
        const QuestionCost cost = cost::costOf(file, course, makeWorld, timedRuns);
        const cost::PrescribedCalls initQuestion(file.question, HostCall::InitQuestion);
        const cost::PrescribedCalls testePoint(file.question, HostCall::TestePoint);
        const cost::PrescribedCalls fermer(file.question, HostCall::Fermer);
        // Prepare is what is left of InitQuestion without the calls around it.
        const std::size_t around = initQuestion.calls + initQuestion.keeping - initQuestion.prepare;
        out << std::setw(8) << file.question << std::setw(14) << against(cost.initQuestion.calls, initQuestion)
            << std::setw(18)
            << std::to_string(cost.initQuestion.calls - around) + '/' + std::to_string(initQuestion.prepare)
            << std::setw(12) << against(cost.testePoint.calls, testePoint) << std::setw(12)
            << against(cost.fermer.calls, fermer) << std::setw(7) << cost.names.size() << std::fixed
            << std::setprecision(2) << std::setw(11) << microsecondsACall(cost) << std::endl;
        for (const auto& [measured, prescribed] :
             {std::pair(&cost.initQuestion, &initQuestion), {&cost.testePoint, &testePoint}, {&cost.fermer, &fermer}}) {
            const std::string difference = trace::differenceOf(measured->lines, prescribed->trace);
            bounds.hold(difference.empty(), "other calls than prescribed: " + difference);
        }
        names.insert(cost.names.begin(), cost.names.end());
        automationCalls += cost.automationCalls();
    }
    out << "\nIn one session: " << automationCalls << " automation calls, " << names.size() << " names stated\n\n";
    return bounds.isGood;
}

bool printLargeDeck(const WorldMaker& makeWorld, std::ostream& out) {
    out << "Question 306's check on a large deck: 10 text shapes on a slide, 100 words in a shape, each read twice\n\n";
    Bounds bounds{out};
    const bool isFlat = printGrowth(
        {},
        [&](const language::ScenarioFile& file, std::size_t times) {
            QuestionCost cost = cost::costOf(file, Course(file, makeWorld), makeWorld, timedRuns);
            const bool isShort = times != 1 || cost.testePoint.time.count() < mostTime;
            bounds.hold(isShort, "the check takes 50 milliseconds or more");
            return cost;
        },
        out);
    return isFlat && bounds.isGood;
}

/// For instruments that count the instructions of a check: nothing stands around the calls.
bool printOneCheck(const CostRequest& request, const CommandContext& at) {
    cost::DeckSize size;
    size.slides = *request.slides;
    const language::ScenarioFile file = cost::largeDeck(size);
    const auto costOf = request.isExplained ? cost::explainedCostOf : cost::unobservedCostOf;
    const QuestionCost cost = costOf(file, Course(file, at.worlds.embedded), at.worlds.embedded);
    at.out << "Question 306's check on a deck of " << size.slides << " slides takes " << std::fixed
           << std::setprecision(1) << cost.testePoint.time.count() << " ms of processor time\n";
    Bounds bounds{at.out};
    bounds.hold(file.scenarios.front().lastExpectation()->matches(cost.reading), "the verdict is wrong");
    bounds.hold(cost.reading.reason.empty() != request.isExplained, "the verdict is not explained");
    return bounds.isGood;
}

bool printLongRun(const CostRequest& request, const CommandContext& at) {
    std::ostream& out = at.out;
    std::vector<language::ScenarioFile> files;
    for (const std::filesystem::path& path : at.library.filesOfCourse(request.questions)) {
        files.push_back(load(path));
    }
    std::vector<cost::BuiltCourse> courses;
    courses.reserve(files.size());
    for (const language::ScenarioFile& file : files) {
        courses.push_back({file, Course(file, at.worlds.embedded)});
    }
    out << "Questions in one process, with one module and one PowerPoint\n\n"
           "questions  resident kB  handles  live objects"
        << std::endl;
    const std::vector<cost::Holding> holdings =
        cost::longRun(courses, request.runs, at.worlds.chosen(),
                      [&](std::size_t done) { at.progress.at("questions", done, request.runs); });
    at.progress.clear();
    const auto shown = [](const std::optional<std::size_t>& figure) {
        return figure ? std::to_string(*figure) : "unknown";
    };
    Bounds bounds{out, !holdings.empty()};
    for (const cost::Holding& holding : holdings) {
        out << std::setw(9) << holding.questions << std::setw(13) << shown(holding.use.kilobytes) << std::setw(9)
            << shown(holding.use.handles) << std::setw(14) << holding.objects << '\n';
        const cost::Holding& first = holdings.front();
        bounds.hold(holding.objects == first.objects, "objects are left alive");
        bounds.hold(holding.use.handles.value_or(0) <= first.use.handles.value_or(0) + mostNewHandles,
                    "handles are left open");
        bounds.hold(static_cast<double>(holding.use.kilobytes.value_or(0)) <=
                        static_cast<double>(first.use.kilobytes.value_or(0)) * mostMemoryGrowth,
                    "memory grows");
        for (const std::string& open : holding.leftOpen) {
            bounds.hold(false, open);
        }
    }
    return bounds.isGood;
}

/// Prints what questions cost in calls and time, and how the cost grows with a deck; or what a long run leaves behind.
/// With remote worlds it is what they cost through COM, beside a script.
bool printAll(const CostRequest& request, const CommandContext& at) {
    if (request.runs != 0) {
        return printLongRun(request, at);
    }
    if (at.worlds.remote) {
        return printRemoteCosts(request, at);
    }
    if (!request.reader.empty()) {
        printReadingCost(request, at);
        return true;
    }
    if (request.slides) {
        return printOneCheck(request, at);
    }
    const bool isGood = printQuestions(request, at);
    return printLargeDeck(at.worlds.embedded, at.out) && isGood;
}

} // namespace

Action addCost(CLI::App& command) {
    const auto request = std::make_shared<CostRequest>();
    addQuestions(command, request->questions);
    command.add_option("--runs", request->runs, "Work through so many questions, and see what the process holds")
        ->check(CLI::PositiveNumber);
    command
        .add_option("--slides", request->slides,
                    "Slides of the large deck; without --powerpoint it alone is checked, once")
        ->check(CLI::PositiveNumber);
    command
        .add_option("--rounds", request->rounds,
                    "With --powerpoint: only check a small deck, so many times, beside a bare client and a script")
        ->check(CLI::PositiveNumber);
    command.add_flag("--explained", request->isExplained, "With --slides: also say why the verdict is what it is");
    command.add_option("--reader", request->reader,
                       "Folder of the second reader's pipes: read the large deck's file beside it");
    return
        [request](const CommandContext& at) { return printAll(*request, at) ? ExitCode::Good : ExitCode::FellShort; };
}

} // namespace trials
