#include "tests/trials/torture/Torture.h"
#include "host/command/Options.h"
#include "host/command/Watch.h"
#include "tests/trials/command/Commands.h"
#include "tests/trials/command/ProcessorTime.h"

#include <ostream>

namespace trials {

namespace {

using torture::Totals;

struct TortureRequest {
    std::vector<std::int32_t> questions; ///< all where none is named
    std::size_t every = 1;               ///< of the calls of an operation one in so many is made to fail
    std::optional<std::uint32_t> draw;   ///< of the random numbers that pick the first; a new one where it is missing
};

void tortureFile(const language::ScenarioFile& file, std::size_t every, std::mt19937& random, Totals& totals,
                 const CommandContext& at) {
    Watch watch(at.out);
    watch.next(file.name);
    const torture::Torture torture(file, at.worlds.embedded, every, random);
    const auto report = [&](const std::string& finding) {
        at.progress.clear();
        at.out << finding << std::endl;
    };
    const auto advance = [&](const torture::Operation& operation, std::size_t call, std::size_t calls) {
        const std::string place =
            "question " + std::to_string(file.question) + ", " + operation.display() + ", call " + std::to_string(call);
        watch.next(place);
        at.progress.at(place, call, calls);
    };
    if (at.worlds.remote) {
        torture.runRemote(at.worlds.remote, totals, report, advance);
    } else {
        torture.run(totals, report, advance);
    }
}

void print(const Totals& totals, std::ostream& out) {
    out << totals.failed << " calls failed:";
    for (std::size_t i = 0; i < totals.outcomes.size(); ++i) {
        out << (i == 0 ? " " : ", ") << totals.outcomes.at(i) << ' ' << nameOf(static_cast<torture::Answer>(i));
    }
    out << "; " << totals.findings << " findings; " << processorSeconds() << " s of processor time" << std::endl;
}

/// Makes the calls fail that leave the module, one by one, and prints what is then amiss, and a line of totals. With
/// remote worlds it is PowerPoint's process that dies, refuses or is late.
ExitCode runTorture(const TortureRequest& request, const CommandContext& at) {
    const std::uint32_t draw = request.draw ? *request.draw : std::random_device()();
    if (request.every > 1) {
        at.out << "one call in " << request.every << ", --draw " << draw << std::endl;
    }
    std::mt19937 random(draw);
    Totals totals;
    for (const std::filesystem::path& path : at.library.filesOfCourse(request.questions)) {
        tortureFile(load(path), request.every, random, totals, at);
    }
    at.progress.clear();
    print(totals, at.out);
    return totals.findings == 0 && totals.failed != 0 ? ExitCode::Good : ExitCode::FellShort;
}

} // namespace

Action addTorture(CLI::App& command) {
    const auto request = std::make_shared<TortureRequest>();
    addQuestions(command, request->questions);
    command.add_option("--every", request->every, "Make one call in so many fail")
        ->capture_default_str()
        ->check(CLI::PositiveNumber);
    command.add_option("--draw", request->draw, "Where --every begins (at random)");
    return [request](const CommandContext& at) { return runTorture(*request, at); };
}

} // namespace trials
