#include "tests/trials/torture/Torture.h"
#include "host/command/Options.h"
#include "host/command/Watch.h"
#include "tests/trials/command/Commands.h"
#include "tests/trials/command/ProcessorTime.h"
#include "tests/trials/memory/MemoryTrial.h"
#include "tests/trials/pairs/PairTrial.h"

#include <ostream>

namespace trials {

namespace {

using torture::Totals;

struct TortureRequest {
    std::vector<std::int32_t> questions; ///< all where none is named
    std::size_t every = 1;               ///< of all that can fail in an operation one in so many is made to
    std::optional<std::uint32_t> draw;   ///< of the random numbers that pick the first; a new one where it is missing
};

/// Has `torment` make things fail in one scenario file after the other, and prints what is then amiss and a line of
/// totals.
template <typename Torment>
ExitCode runAll(const TortureRequest& request, const CommandContext& at, const char* what, const Torment& torment) {
    const std::uint32_t draw = request.draw ? *request.draw : std::random_device()();
    if (request.every > 1) {
        at.out << "one " << what << " in " << request.every << ", --draw " << draw << std::endl;
    }
    std::mt19937 random(draw);
    Totals totals;
    for (const std::filesystem::path& path : at.library.filesOfCourse(request.questions)) {
        const language::ScenarioFile file = load(path);
        Watch watch(at.out);
        watch.next(file.name);
        const auto report = [&](const std::string& finding) {
            at.progress.clear();
            at.out << finding << std::endl;
        };
        const auto advance = [&](const std::string& operation, std::size_t n, std::size_t all) {
            const std::string place =
                "question " + std::to_string(file.question) + ", " + operation + ", " + what + " " + std::to_string(n);
            watch.next(place);
            at.progress.at(place, n, all);
        };
        torment(file, random, torture::Audience(file.question, totals, report, advance));
    }
    at.progress.clear();
    at.out << totals.failed << ' ' << what << "s failed:";
    for (std::size_t i = 0; i < totals.outcomes.size(); ++i) {
        at.out << (i == 0 ? " " : ", ") << totals.outcomes.at(i) << ' ' << nameOf(static_cast<torture::Answer>(i));
    }
    at.out << "; " << totals.findings << " findings; " << processorSeconds() << " s of processor time" << std::endl;
    return totals.findings == 0 && totals.failed != 0 ? ExitCode::Good : ExitCode::FellShort;
}

/// Makes the calls fail that leave the module, one by one. With remote worlds it is PowerPoint's process that dies,
/// refuses or is late.
ExitCode runTorture(const TortureRequest& request, const CommandContext& at) {
    return runAll(request, at, "call",
                  [&](const language::ScenarioFile& file, std::mt19937& random, const torture::Audience& audience) {
                      const torture::Torture torture(file, at.worlds.embedded, request.every, random);
                      if (at.worlds.remote) {
                          torture.runRemote(at.worlds.remote, audience);
                      } else {
                          torture.run(audience);
                      }
                  });
}

/// Makes allocations fail, one by one.
ExitCode runMemory(const TortureRequest& request, const CommandContext& at) {
    return runAll(request, at, "allocation",
                  [&](const language::ScenarioFile& file, std::mt19937& random, const torture::Audience& audience) {
                      memory::MemoryTrial(file, at.worlds.embedded, request.every, random).run(audience);
                  });
}

/// Makes a second thing fail in the operation in which one has failed.
ExitCode runPairs(const TortureRequest& request, const CommandContext& at) {
    return runAll(request, at, "pair",
                  [&](const language::ScenarioFile& file, std::mt19937& random, const torture::Audience& audience) {
                      pairs::PairTrial(file, at.worlds.embedded, request.every, random).run(audience);
                  });
}

Action add(CLI::App& command, ExitCode (*run)(const TortureRequest&, const CommandContext&)) {
    const auto request = std::make_shared<TortureRequest>();
    addQuestions(command, request->questions);
    command.add_option("--every", request->every, "Make one in so many fail")
        ->capture_default_str()
        ->check(CLI::PositiveNumber);
    command.add_option("--draw", request->draw, "Where --every begins (at random)");
    return [request, run](const CommandContext& at) { return run(*request, at); };
}

} // namespace

Action addTorture(CLI::App& command) {
    return add(command, runTorture);
}

Action addMemory(CLI::App& command) {
    return add(command, runMemory);
}

Action addPairs(CLI::App& command) {
    return add(command, runPairs);
}

} // namespace trials
