#include "host/command/Options.h"
#include "host/command/Watch.h"
#include "tests/trials/command/Commands.h"
#include "tests/trials/command/ProcessorTime.h"
#include "tests/trials/days/DayTrial.h"
#include "tests/trials/learners/Shrink.h"

#include <ostream>

namespace trials {

namespace {

struct DaysRequest {
    std::vector<std::int32_t> questions; ///< all where none is named
    std::size_t runs = 100;
    std::size_t attempts = 3;          ///< at each question in a day
    std::optional<std::uint32_t> draw; ///< of the first day; a new one where it is missing
};

/// Has hosts and learners spend days with the course, and prints of each that leaves something behind what that is, and
/// the fewest attempts that still leave something.
ExitCode spend(const DaysRequest& request, const CommandContext& at) {
    const std::uint32_t draw = request.draw ? *request.draw : std::random_device()();
    const bool isRemote = static_cast<bool>(at.worlds.remote);
    at.out << request.runs << " days, --draw " << draw << std::endl;
    std::vector<language::ScenarioFile> files;
    for (const std::filesystem::path& path : at.library.filesOfCourse(request.questions)) {
        files.push_back(load(path));
    }
    std::vector<days::Lesson> lessons;
    lessons.reserve(files.size());
    for (const language::ScenarioFile& file : files) {
        lessons.push_back({file, Course(file, at.worlds.embedded)});
    }
    // What a process does late takes seconds.
    constexpr std::size_t oftenHere = 30;
    constexpr std::size_t oftenThere = 10;
    days::Planner planner(lessons, isRemote ? torture::Fault::remote() : torture::Fault::all(),
                          isRemote ? oftenThere : oftenHere);
    Watch watch(at.out);
    days::Totals totals;
    std::size_t failed = 0;
    for (std::size_t run = 0; run < request.runs; ++run) {
        at.progress.at("days", run, request.runs);
        const std::uint32_t number = draw + static_cast<std::uint32_t>(run);
        const std::string name = "day " + std::to_string(number);
        watch.next(name);
        const days::Day day = planner.day(number, request.attempts);
        const days::DayTrial trial(at.worlds.chosen(), isRemote,
                                   [&](const std::string& attempt) { watch.next(name + ", " + attempt); });
        const std::vector<std::string> findings = trial.live(day, totals);
        if (findings.empty()) {
            continue;
        }
        ++failed;
        at.progress.clear();
        for (const std::string& finding : findings) {
            at.out << name << " (--runs 1 --draw " << number << "): " << finding << std::endl;
        }
        if (!isRemote) {
            days::Totals ignored;
            for (const days::Attempt& each : learners::shrunk(day, [&](const days::Day& fewer) {
                     return !fewer.empty() && !trial.live(fewer, ignored).empty();
                 })) {
                at.out << "  " << each.display() << std::endl;
            }
        }
    }
    at.progress.clear();
    at.out << totals.attempts << " attempts, " << totals.checks << " checks, " << totals.struck << " faults struck; "
           << processorSeconds() << " s of processor time\n"
           << request.runs - failed << " passed, " << failed << " failed\n";
    return failed == 0 && totals.struck != 0 ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addDays(CLI::App& command) {
    const auto request = std::make_shared<DaysRequest>();
    addQuestions(command, request->questions);
    command.add_option("--runs", request->runs, "Days")->capture_default_str()->check(CLI::PositiveNumber);
    command.add_option("--attempts", request->attempts, "Attempts at each question in a day")
        ->capture_default_str()
        ->check(CLI::PositiveNumber);
    command.add_option("--draw", request->draw, "Number of the first day (at random)");
    return [request](const CommandContext& at) { return spend(*request, at); };
}

} // namespace trials
