#include "host/command/Commands.h"
#include "host/command/Options.h"
#include "host/command/Watch.h"
#include "host/picture/Camera.h"
#include "host/reason/Delivery.h"
#include "host/reason/Explainer.h"
#include "host/report/JUnit.h"
#include "host/report/Json.h"
#include "host/report/Letters.h"
#include "host/report/Page.h"
#include "host/report/Recorder.h"
#include "host/run/Runner.h"
#include "host/run/Witnesses.h"
#include "host/world/OutputFile.h"
#include "host/world/RealFile.h"

#include "automation/Text.h"
#include "automation/observe/CallCounter.h"

#include <algorithm>
#include <chrono>
#include <ostream>
#include <random>

namespace host {

namespace {

using automation::toUtf8;
using report::FileResult;
using report::Report;
using report::Result;

using Files = std::vector<language::ScenarioFile>;

/// All files of the library where nothing is named.
struct VerifyRequest {
    std::vector<std::int32_t> questions;
    std::vector<std::string> files;
    std::string course;                ///< folder of the course's own files; empty for those that the files build
    std::string page;                  ///< file for a report as a page; empty for none
    std::string junit;                 ///< file for a report as build servers read it; empty for none
    std::string json;                  ///< file for a report as JSON; empty for none
    std::optional<std::size_t> sample; ///< scenarios of each file; all where nothing is said
    std::optional<std::uint32_t> draw; ///< of the random numbers that pick them; a new one where it is missing
};

/// Leaves so many scenarios of each file, picked at random; says what picks the same again.
void takeSample(const VerifyRequest& request, Files& files, std::ostream& out) {
    const std::uint32_t draw = request.draw ? *request.draw : std::random_device()();
    out << *request.sample << " scenarios of each file, --draw " << draw << std::endl;
    std::mt19937 random(draw);
    for (language::ScenarioFile& file : files) {
        while (file.scenarios.size() > *request.sample) {
            file.scenarios.erase(file.scenarios.begin() +
                                 static_cast<std::ptrdiff_t>(random() % file.scenarios.size()));
        }
    }
}

/// Runs the scenarios of files, one after the other.
class Verification {
public:
    Verification(const VerifyRequest& request, const CommandContext& at) : request_(request), at_(at) {}

    Report run(const Files& files) {
        for (const language::ScenarioFile& file : files) {
            scenarios_ += file.scenarios.size();
        }
        Report report;
        for (const language::ScenarioFile& file : files) {
            report.push_back(run(file));
        }
        at_.progress.clear();
        return report;
    }

private:
    FileResult run(const language::ScenarioFile& file) {
        FileResult result{
            file.name, file.question, toUtf8(file.subject()), file.contract.meanings, {}, request_.sample.has_value()};
        Watch watch(at_.out);
        watch.next(file.name + ", its course");
        const WorldMaker& makeWorld = at_.worlds.chosen();
        const Runner runner = request_.course.empty()
                                  ? Runner(file, makeWorld)
                                  : Runner(file, courseOf(file, request_.course, makeWorld), makeWorld);
        std::vector<language::Remark> amiss = shortcomingsOf(runner, file);
        if (!amiss.empty() && !request_.course.empty()) {
            // What scenarios say of a presentation that is not the one they are about would puzzle only.
            return withAmiss("what the course delivers", std::move(amiss), std::move(result));
        }
        for (const language::Scenario& scenario : file.scenarios) {
            const std::string place = file.name + " \"" + toUtf8(scenario.title) + "\"";
            watch.next(place);
            at_.progress.at(result.name() + ", " + toUtf8(scenario.title), ++scenario_, scenarios_);
            add(run(runner, scenario, file.contract), result);
        }
        if (result.failed() == 0) {
            const std::vector<language::Remark> letters = report::lettersAmiss(result);
            amiss.insert(amiss.end(), letters.begin(), letters.end());
        }
        return withAmiss("what the file says of its question", std::move(amiss), std::move(result));
    }

    std::vector<language::Remark> shortcomingsOf(const Runner& runner, const language::ScenarioFile& file) const {
        return runner.course() == nullptr ? std::vector<language::Remark>()
                                          : reason::shortcomingsOf(*runner.course(), file, at_.worlds.chosen());
    }

    FileResult withAmiss(const std::string& title, std::vector<language::Remark> amiss, FileResult result) const {
        if (!amiss.empty()) {
            const std::size_t line = amiss.front().place.line;
            add({title, line, {}, std::move(amiss), 0, {}}, result);
        }
        return result;
    }

    void add(Result result, FileResult& file) const {
        for (const language::Remark& failure : result.failures) {
            at_.progress.clear();
            at_.out << failure.in(file.file) << " (\"" << result.title << "\")" << std::endl;
        }
        file.results.push_back(std::move(result));
    }

    Result run(const Runner& runner, const language::Scenario& scenario, const language::Contract& contract) {
        Result result{toUtf8(scenario.title), scenario.place.line, {}, {}, 0, {}};
        const auto counter = isReported() && !at_.worlds.remote ? std::make_shared<automation::CallCounter>() : nullptr;
        reason::Explainer explainer(contract, counter);
        const auto makeWitness = [&](World& world) {
            auto witnesses = std::make_unique<Witnesses>();
            witnesses->add(explainer);
            if (!request_.page.empty()) {
                // Told of a verdict before the recorder is, which then begins another attempt.
                witnesses->add(std::make_unique<Camera>(
                    world, [&](BeforeAfter slide) { result.attempts.back().slide = std::move(slide); }));
            }
            witnesses->add(std::make_unique<report::Recorder>(result));
            return witnesses;
        };
        result.failures = runner.run(scenario, makeWitness, explainer.observer()).failures;
        result.calls = counter ? counter->count() : 0;
        return result;
    }

    [[nodiscard]] bool isReported() const {
        return !request_.page.empty() || !request_.junit.empty() || !request_.json.empty();
    }

    const VerifyRequest& request_;
    const CommandContext& at_;
    std::size_t scenario_ = 0;
    std::size_t scenarios_ = 0;
};

std::vector<std::filesystem::path> named(const VerifyRequest& request, const Library& library) {
    std::vector<std::filesystem::path> paths = library.filesOf(request.questions);
    std::transform(request.files.begin(), request.files.end(), std::back_inserter(paths), pathOf);
    return paths.empty() ? library.files() : paths;
}

/// The day and the time, in UTC: `2026-11-21 10:08 UTC`.
std::string now() {
    using namespace std::chrono;
    const auto moment = floor<minutes>(system_clock::now());
    const auto midnight = floor<days>(moment);
    const year_month_day date(midnight);
    const hh_mm_ss time(moment - midnight);
    const auto twoDigits = [](auto number) { return std::to_string(100 + number).substr(1); };
    return std::to_string(static_cast<int>(date.year())) + "-" + twoDigits(static_cast<unsigned>(date.month())) + "-" +
           twoDigits(static_cast<unsigned>(date.day())) + " " + twoDigits(time.hours().count()) + ":" +
           twoDigits(time.minutes().count()) + " UTC";
}

/// A report that is asked for.
struct Wanted {
    OutputFile file;
    std::function<std::string(const Report&)> form;
};

std::vector<Wanted> wantedReports(const VerifyRequest& request) {
    const auto asPage = [](const Report& report) { return report::asPage(report, now()); };
    std::vector<Wanted> all;
    const auto add = [&](const std::string& name, std::string_view beginning, const auto& form) {
        if (!name.empty()) {
            all.push_back({OutputFile(name, std::string(beginning)), form});
        }
    };
    add(request.page, report::pageBeginning, asPage);
    add(request.junit, report::junitBeginning, report::asJUnit);
    add(request.json, report::jsonBeginning, report::asJson);
    return all;
}

void prepare(const std::vector<Wanted>& reports, const std::vector<std::filesystem::path>& inputs) {
    std::vector<OutputFile> files;
    for (const Wanted& report : reports) {
        files.push_back(report.file);
    }
    OutputFile::prepare(files, inputs);
}

/// Runs all scenarios, prints what falls short and writes the reports asked for.
ExitCode verify(const VerifyRequest& request, const CommandContext& at) {
    Files files;
    const std::vector<std::filesystem::path> paths = named(request, at.library);
    for (const std::filesystem::path& path : paths) {
        files.push_back(load(path));
    }
    // Whether PowerPoint keeps its promises is asked by a command of its own.
    std::erase_if(files, [](const language::ScenarioFile& file) { return !file.className.empty(); });
    if (request.sample) {
        takeSample(request, files, at.out);
    }
    if (std::all_of(files.begin(), files.end(), [](const auto& file) { return file.scenarios.empty(); })) {
        throw UsageError("no scenario to verify");
    }
    const std::vector<Wanted> reports = wantedReports(request);
    prepare(reports, paths);
    const Report report = Verification(request, at).run(files);
    for (const Wanted& wanted : reports) {
        wanted.file.write(wanted.form(report));
    }
    const report::Totals totals(report);
    at.out << totals.passed << " passed, " << totals.failed << " failed\n";
    return totals.failed == 0 ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addVerify(CLI::App& command) {
    const auto request = std::make_shared<VerifyRequest>();
    addQuestions(command, request->questions);
    command.add_option("--file", request->files, "A scenario file");
    addCourse(command, request->course);
    auto* const sample =
        command.add_option("--sample", request->sample, "Run so many scenarios of each file, at random");
    command.add_option("--draw", request->draw, "What --sample draws by (at random)")->needs(sample);
    command.add_option("--report", request->page, "Write a page of all scenarios, with pictures (F.html)");
    command.add_option("--junit", request->junit, "Write a report as build servers read it (F.xml)");
    command.add_option("--json", request->json, "Write a report as JSON (F.json)");
    return [request](const CommandContext& at) { return verify(*request, at); };
}

} // namespace host
