#include "host/command/Commands.h"
#include "host/command/Options.h"
#include "host/command/Repetition.h"
#include "host/command/Reports.h"
#include "host/command/Trouble.h"
#include "host/command/Watch.h"
#include "host/picture/Camera.h"
#include "host/reason/Delivery.h"
#include "host/reason/Explainer.h"
#include "host/report/Letters.h"
#include "host/report/Recorder.h"
#include "host/run/Runner.h"
#include "host/run/Witnesses.h"

#include "automation/Text.h"
#include "automation/observe/CallCounter.h"

#include <algorithm>
#include <ostream>
#include <random>
#include <set>

namespace host {

namespace {

using automation::toUtf8;
using report::FileResult;
using report::Report;
using report::Result;

using Files = std::vector<language::ScenarioFile>;

/// All files of the library where nothing is named.
struct VerifyRequest {
    std::vector<std::string> files;  ///< or numbers of questions
    std::vector<std::string> titles; ///< of scenarios; all where none is named
    std::string course;              ///< folder of the course's own files; empty for those that the files build
    ReportNames reports;
    bool isStopped = false;            ///< at the first scenario that falls short
    bool namesAll = false;             ///< says which passed, too
    bool isRepeated = false;           ///< whenever a file is saved
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
            if (isOver(report.back())) {
                break;
            }
        }
        at_.progress.clear();
        return report;
    }

private:
    FileResult run(const language::ScenarioFile& file) {
        FileResult result{file.name,
                          file.question,
                          toUtf8(file.subject()),
                          file.contract.meanings,
                          {},
                          request_.sample || !request_.titles.empty()};
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
            if (isOver(result)) {
                break;
            }
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

    [[nodiscard]] bool isOver(const FileResult& result) const { return request_.isStopped && result.failed() != 0; }

    void add(Result result, FileResult& file) const {
        if (result.passed() && request_.namesAll) {
            at_.progress.clear();
            at_.out << file.name() << " \"" << result.title << "\": " << at_.ink.good("passed") << std::endl;
        }
        for (const language::Remark& failure : result.failures) {
            at_.progress.clear();
            at_.out << failure.in(file.file) << " (\"" << result.title << "\")" << std::endl;
        }
        file.results.push_back(std::move(result));
    }

    Result run(const Runner& runner, const language::Scenario& scenario, const language::Contract& contract) {
        Result result{toUtf8(scenario.title), scenario.place.line, {}, {}, 0, {}};
        const auto counter =
            request_.reports.isAny() && !at_.worlds.remote ? std::make_shared<automation::CallCounter>() : nullptr;
        reason::Explainer explainer(contract, counter);
        const auto makeWitness = [&](World& world) {
            auto witnesses = std::make_unique<Witnesses>();
            witnesses->add(explainer);
            if (!request_.reports.page.empty()) {
                // Told of a verdict before the recorder is, which then begins another attempt.
                witnesses->add(std::make_unique<Camera>(world, [&](std::vector<BeforeAfter> slides) {
                    result.attempts.back().slides = std::move(slides);
                }));
            }
            witnesses->add(std::make_unique<report::Recorder>(result));
            return witnesses;
        };
        result.failures = runner.run(scenario, makeWitness, explainer.observer()).failures;
        result.calls = counter ? counter->count() : 0;
        return result;
    }

    const VerifyRequest& request_;
    const CommandContext& at_;
    std::size_t scenario_ = 0;
    std::size_t scenarios_ = 0;
};

/// Leaves the scenarios of these titles. Raises UsageError where there is none of a title.
void takeTitles(const std::vector<std::string>& titles, Files& files) {
    std::set<std::string> found;
    for (language::ScenarioFile& file : files) {
        std::erase_if(file.scenarios, [&](const language::Scenario& scenario) {
            const std::string title = toUtf8(scenario.title);
            const bool isWanted = std::find(titles.begin(), titles.end(), title) != titles.end();
            found.insert(isWanted ? title : "");
            return !isWanted;
        });
    }
    for (const std::string& title : titles) {
        if (!found.contains(title)) {
            throw UsageError("no scenario \"" + title + "\": 'list' names all");
        }
    }
    std::erase_if(files, [](const language::ScenarioFile& file) { return file.scenarios.empty(); });
}

/// The scenarios to be run. Raises WrongFiles and UsageError.
Files chosen(const VerifyRequest& request, const std::vector<std::filesystem::path>& paths) {
    Files files = load(paths);
    // Whether PowerPoint keeps its promises is asked by a command of its own.
    std::erase_if(files, [](const language::ScenarioFile& file) { return !file.className.empty(); });
    if (files.empty()) {
        throw UsageError(paths.empty() ? "no scenario to verify"
                                       : paths.front().string() + " holds no scenario to verify; 'conform' asks for "
                                                                  "what PowerPoint promises");
    }
    for (const language::ScenarioFile& file : files) {
        if (file.scenarios.empty()) {
            throw UsageError("no scenario to verify in " + file.name);
        }
    }
    if (!request.titles.empty()) {
        takeTitles(request.titles, files);
    }
    return files;
}

/// Runs all scenarios, prints what falls short and writes the reports asked for.
ExitCode verify(const VerifyRequest& request, const std::vector<std::filesystem::path>& paths,
                const CommandContext& at) {
    const Reports reports(request.reports);
    Files files;
    try {
        files = chosen(request, paths);
    } catch (const WrongFiles& wrong) {
        reports.prepare(paths);
        reports.writeWrong(wrong.files);
        throw;
    }
    reports.prepare(paths);
    if (request.sample) {
        takeSample(request, files, at.out);
    }
    const Report report = Verification(request, at).run(files);
    reports.write(report);
    const report::Totals totals(report);
    const std::string failed = std::to_string(totals.failed) + " failed";
    at.out << at.ink.good(std::to_string(totals.passed) + " passed") << ", "
           << (totals.failed == 0 ? failed : at.ink.bad(failed)) << std::endl;
    return totals.failed == 0 ? ExitCode::Good : ExitCode::FellShort;
}

ExitCode verifyAsAsked(const VerifyRequest& request, const CommandContext& at) {
    const std::vector<std::filesystem::path> paths = at.library.filesNamed(request.files);
    if (!request.isRepeated) {
        return verify(request, paths, at);
    }
    onEverySaving(paths, [&] {
        static_cast<void>(withTroubleTold("verify", at.out, [&] { return verify(request, paths, at); }));
        at.out << "Waiting for a file to be saved; Ctrl-C ends it" << std::endl;
    });
}

} // namespace

Action addVerify(CLI::App& command) {
    const auto request = std::make_shared<VerifyRequest>();
    addScenarioFiles(command, request->files);
    command.add_option("--scenario", request->titles, "Title of a scenario (all)")->allow_extra_args(false);
    command.add_flag("--stop", request->isStopped, "Stop at the first scenario that falls short");
    command.add_flag("--passed", request->namesAll, "Name the scenarios that pass, too");
    command.add_flag("--watch", request->isRepeated, "Go on: again whenever a file is saved");
    addCourse(command, request->course);
    auto* const sample =
        command.add_option("--sample", request->sample, "Run so many scenarios of each file, at random")
            ->check(wholeNumber());
    command.add_option("--draw", request->draw, "What --sample draws by (at random)")->needs(sample);
    command.add_option("--report", request->reports.page, "Write a page of all, with pictures (F.html)");
    command.add_option("--junit", request->reports.junit, "Write a report for build servers (F.xml)");
    command.add_option("--json", request->reports.json, "Write a report as JSON (F.json)");
    return [request](const CommandContext& at) { return verifyAsAsked(*request, at); };
}

} // namespace host
