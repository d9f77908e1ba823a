#include "host/command/Commands.h"
#include "host/command/Watch.h"
#include "host/picture/Camera.h"
#include "host/report/JUnit.h"
#include "host/report/Json.h"
#include "host/report/Page.h"
#include "host/report/Recorder.h"
#include "host/run/Runner.h"
#include "host/run/Witnesses.h"

#include "automation/Text.h"
#include "automation/observe/CallCounter.h"

#include <algorithm>
#include <ctime>
#include <ostream>

namespace host {

namespace {

using automation::toUtf8;
using report::FileResult;
using report::Report;
using report::Result;

using Files = std::vector<language::ScenarioFile>;

/// Runs the scenarios of files, one after the other.
class Verification {
public:
    Verification(const VerifyRequest& request, const WorldMaker& makeWorld, std::ostream& out, Progress& progress)
        : request_(request), makeWorld_(makeWorld), out_(out), progress_(progress) {}

    Report run(const Files& files) {
        for (const language::ScenarioFile& file : files) {
            scenarios_ += file.scenarios.size();
        }
        Report report;
        for (const language::ScenarioFile& file : files) {
            report.push_back(run(file));
        }
        progress_.clear();
        return report;
    }

private:
    FileResult run(const language::ScenarioFile& file) {
        FileResult result{file.name, file.question, toUtf8(file.heading), {}};
        Watch watch(Watch::patience, out_);
        watch.next(file.name + ", its course");
        const Runner runner(file, makeWorld_);
        for (const language::Scenario& scenario : file.scenarios) {
            const std::string place = file.name + " \"" + toUtf8(scenario.title) + "\"";
            watch.next(place);
            progress_.at(result.name() + ", " + toUtf8(scenario.title), ++scenario_, scenarios_);
            result.results.push_back(run(runner, scenario));
            for (const language::Remark& failure : result.results.back().failures) {
                progress_.clear();
                out_ << failure.in(file.name) << " (\"" << toUtf8(scenario.title) << "\")" << std::endl;
            }
        }
        return result;
    }

    Result run(const Runner& runner, const language::Scenario& scenario) {
        Result result{toUtf8(scenario.title), scenario.place.line, {}, {}, 0, {}};
        const auto counter =
            isReported() && request_.countsCalls ? std::make_shared<automation::CallCounter>() : nullptr;
        const auto makeWitness = [&](World& world) {
            auto witnesses = std::make_unique<Witnesses>();
            if (!request_.page.empty()) {
                // Told of a verdict before the recorder is, which then begins another attempt.
                witnesses->add(std::make_unique<Camera>(
                    world, [&](BeforeAfter slide) { result.attempts.back().slide = std::move(slide); }));
            }
            witnesses->add(std::make_unique<report::Recorder>(result));
            return witnesses;
        };
        result.failures = runner.run(scenario, makeWitness, counter).failures;
        result.calls = counter ? counter->count() : 0;
        return result;
    }

    [[nodiscard]] bool isReported() const {
        return !request_.page.empty() || !request_.junit.empty() || !request_.json.empty();
    }

    const VerifyRequest& request_;
    const WorldMaker& makeWorld_;
    std::ostream& out_;
    Progress& progress_;
    std::size_t scenario_ = 0;
    std::size_t scenarios_ = 0;
};

std::vector<std::filesystem::path> named(const VerifyRequest& request, const Library& library) {
    std::vector<std::filesystem::path> paths = library.filesOf(request.questions);
    paths.insert(paths.end(), request.files.begin(), request.files.end());
    return paths.empty() ? library.files() : paths;
}

/// The day and the time, in UTC.
std::string now() {
    const std::time_t time = std::time(nullptr);
    std::array<char, 32> text{};
    const std::size_t size = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M UTC", std::gmtime(&time));
    return {text.data(), size};
}

void write(const VerifyRequest& request, const Report& report) {
    if (!request.page.empty()) {
        writeContents(request.page, report::asPage(report, now()));
    }
    if (!request.junit.empty()) {
        writeContents(request.junit, report::asJUnit(report));
    }
    if (!request.json.empty()) {
        writeContents(request.json, report::asJson(report));
    }
}

} // namespace

ExitCode verify(const VerifyRequest& request, const Library& library, const WorldMaker& makeWorld, std::ostream& out,
                Progress& progress) {
    Files files;
    for (const std::filesystem::path& path : named(request, library)) {
        files.push_back(load(path));
    }
    if (std::all_of(files.begin(), files.end(), [](const auto& file) { return file.scenarios.empty(); })) {
        throw UsageError("no scenario to verify");
    }
    for (const std::string& file : {request.page, request.junit, request.json}) {
        if (!file.empty()) {
            demandWritable(file);
        }
    }
    const Report report = Verification(request, makeWorld, out, progress).run(files);
    write(request, report);
    const report::Totals totals(report);
    out << totals.passed << " passed, " << totals.failed << " failed\n";
    return totals.failed == 0 ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace host
