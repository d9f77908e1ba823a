#include "host/command/Commands.h"
#include "host/command/Watch.h"
#include "host/run/Runner.h"

#include "automation/Text.h"

#include <algorithm>
#include <ostream>

namespace host {

namespace {

struct Tally {
    std::size_t passed = 0;
    std::size_t failed = 0;
};

void verifyFile(const language::ScenarioFile& file, const WorldMaker& makeWorld, Tally& tally, std::ostream& out) {
    Watch watch(Watch::patience, out);
    watch.next(file.name + ", its course");
    const Runner runner(file, makeWorld);
    for (const language::Scenario& scenario : file.scenarios) {
        watch.next(file.name + " \"" + automation::toUtf8(scenario.title) + "\"");
        const Outcome outcome = runner.run(scenario);
        for (const language::Remark& failure : outcome.failures) {
            out << failure.in(file.name) << " (\"" << automation::toUtf8(scenario.title) << "\")" << std::endl;
        }
        ++(outcome.failures.empty() ? tally.passed : tally.failed);
    }
}

std::vector<std::filesystem::path> named(const VerifyRequest& request, const Library& library) {
    std::vector<std::filesystem::path> paths = library.filesOf(request.questions);
    paths.insert(paths.end(), request.files.begin(), request.files.end());
    return paths.empty() ? library.files() : paths;
}

} // namespace

ExitCode verify(const VerifyRequest& request, const Library& library, const WorldMaker& makeWorld, std::ostream& out) {
    std::vector<language::ScenarioFile> files;
    for (const std::filesystem::path& path : named(request, library)) {
        files.push_back(load(path));
    }
    if (std::all_of(files.begin(), files.end(), [](const auto& file) { return file.scenarios.empty(); })) {
        throw UsageError("no scenario to verify");
    }
    Tally tally;
    for (const language::ScenarioFile& file : files) {
        verifyFile(file, makeWorld, tally, out);
    }
    out << tally.passed << " passed, " << tally.failed << " failed\n";
    return tally.failed == 0 ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace host
