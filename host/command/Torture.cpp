#include "host/torture/Torture.h"
#include "host/command/Commands.h"
#include "host/command/Watch.h"

#include <ostream>

namespace host {

namespace {

using torture::Totals;

void tortureFile(const language::ScenarioFile& file, const Worlds& worlds, std::size_t every, std::mt19937& random,
                 Totals& totals, std::ostream& out, Progress& progress) {
    Watch watch(Watch::patience, out);
    watch.next(file.name);
    const torture::Torture torture(file, worlds.embedded, every, random);
    const auto report = [&](const std::string& finding) {
        progress.clear();
        out << finding << std::endl;
    };
    const auto advance = [&](const torture::Operation& operation, std::size_t call, std::size_t calls) {
        const std::string place =
            "question " + std::to_string(file.question) + ", " + operation.display() + ", call " + std::to_string(call);
        watch.next(place);
        progress.at(place, call, calls);
    };
    if (worlds.remote) {
        torture.runRemote(worlds.remote, totals, report, advance);
    } else {
        torture.run(totals, report, advance);
    }
}

void print(const Totals& totals, std::ostream& out) {
    out << totals.failed << " calls failed:";
    for (std::size_t i = 0; i < totals.outcomes.size(); ++i) {
        out << (i == 0 ? " " : ", ") << totals.outcomes.at(i) << ' ' << nameOf(static_cast<torture::Answer>(i));
    }
    out << "; " << totals.findings << " findings" << std::endl;
}

} // namespace

ExitCode runTorture(const TortureRequest& request, const Library& library, const Worlds& worlds, std::ostream& out,
                    Progress& progress) {
    const std::uint32_t draw = request.draw ? *request.draw : std::random_device()();
    if (request.every > 1) {
        out << "one call in " << request.every << ", --draw " << draw << std::endl;
    }
    std::mt19937 random(draw);
    Totals totals;
    for (const std::filesystem::path& path :
         library.filesOf(request.questions.empty() ? Library::questions() : request.questions)) {
        tortureFile(load(path), worlds, request.every, random, totals, out, progress);
    }
    progress.clear();
    print(totals, out);
    return totals.findings == 0 && totals.failed != 0 ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace host
