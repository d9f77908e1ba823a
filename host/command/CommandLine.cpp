#include "host/command/CommandLine.h"
#include "host/command/Options.h"

namespace host {

namespace {

constexpr const char* purpose = "Runs the exercises of a PowerPoint course: stages a question, makes a learner's moves "
                                "and asks the module for its verdict.";

constexpr const char* examples = R"(Examples:
  exercise-host run                      the whole road of question 306
  exercise-host run 307 --json           the same of 307, as one JSON object
  exercise-host run 306 --scenario "one occurrence forgotten" --trace
  exercise-host try 306                  a conversation: your moves, the verdict, saved as a scenario
  exercise-host verify                   all scenarios of all questions
  exercise-host verify 306 307
  exercise-host verify --file mine.scn   a scenario file of your own
  exercise-host verify --report F.html   a page of all scenarios, with pictures of the slides
  exercise-host run 315 --picture DIR    the slide before and after, as SVG
  exercise-host run 306 --course DIR     on the course's own files; so do try and recheck
  exercise-host recheck Méthodologie.ppt --question 306
  exercise-host list                     the questions and their scenarios
  exercise-host torture 306              every call of question 306 made to fail in every way
  exercise-host learners 306             random learners, judged by the module and by a second judge
  exercise-host bench                    what the questions cost in calls and time

Exit codes: 0 good, 1 a scenario fell short, 2 wrong usage or a wrong line in a scenario file, 3 a
scenario hung.)";

/// One of the program's commands.
struct Command {
    const char* name;
    const char* what;
    Action (*add)(CLI::App&);
    bool takesPowerPoint; ///< with `--powerpoint` it works through COM
};

constexpr std::array commands{
    Command{"run", "Tell the whole road of one question, and what the host reads last", addRun, true},
    Command{"try", "Talk: state a learner's moves, see values, ask for the verdict", addTry, true},
    Command{"verify", "Run scenarios and print what falls short", addVerify, true},
    Command{"recheck", "Judge a saved working presentation, without a live PowerPoint", addRecheck, false},
    Command{"list", "List questions and scenarios", addList, false},
    Command{"torture", "Make every call that leaves the module fail, and see that nothing is lost and no verdict wrong",
            addTorture, true},
    Command{"learners", "Let learners work at random, and judge them a second time", addLearners, false},
    Command{"bench", "Measure calls, time and memory", addBench, true},
};

/// The command line with what it asks for.
struct CommandLine {
    CommandLine(const std::filesystem::path& scenarios, const std::string& version) : folder(scenarios.string()) {
        app.footer(examples);
        app.set_version_flag("--version", version);
        app.require_subcommand(0, 1); // so that an unknown word is named
        app.add_option("--scenarios", folder, "Folder of the scenario files")->capture_default_str();
        for (const Command& each : commands) {
            CLI::App& command = *app.add_subcommand(each.name, each.what);
            command.callback([this, action = each.add(command)] { chosen = action; });
            command.fallthrough();
            if (each.takesPowerPoint) {
                auto* const real = command.add_flag(
                    "--powerpoint", withPowerPoint,
                    "On Windows: drive the registered K73053.dll and the registered PowerPoint, not the embedded ones");
                command.add_option("--powerpoint-bits", powerPointBits, "Demand a stand-in of 32 or 64 bits")
                    ->needs(real)
                    ->check(CLI::IsMember({32, 64}));
            }
        }
    }

    CLI::App app{purpose, "exercise-host"};
    std::string folder;
    Action chosen; ///< empty where no command is named
    bool withPowerPoint = false;
    std::int32_t powerPointBits = 0;
};

/// The worlds with PowerPoint in a process of its own, where they are asked for. Raises UsageError where there is no
/// such thing.
WorldMaker remoteWorlds(const CommandLine& asked, const ComWorldsMaker& makeComWorlds) {
    if (!asked.withPowerPoint) {
        return nullptr;
    }
    if (makeComWorlds == nullptr) {
        throw UsageError("--powerpoint needs Windows; here only the embedded PowerPoint runs");
    }
    return makeComWorlds(asked.powerPointBits);
}

ExitCode perform(const CommandLine& asked, const WorldMaker& embedded, const ComWorldsMaker& makeComWorlds,
                 const LineReaderMaker& makeLines, Output output) {
    try {
        if (asked.chosen == nullptr) {
            throw UsageError("which command? See exercise-host --help");
        }
        const Library library(asked.folder);
        const WorldMaker remote = remoteWorlds(asked, makeComWorlds);
        Progress progress(output.error, output.isTerminal);
        return asked.chosen({library, {embedded, remote}, makeLines, output.out, progress});
    } catch (const language::WrongLines& wrong) {
        for (const language::Remark& remark : wrong.remarks) {
            output.error << remark.in(wrong.file) << '\n';
        }
    } catch (const std::exception& error) {
        output.error << "exercise-host: " << error.what() << '\n';
    }
    return ExitCode::WrongUsage;
}

} // namespace

ExitCode runCommandLine(const std::vector<std::string>& arguments, const std::filesystem::path& scenarios,
                        const std::string& version, const WorldMaker& makeWorld, Output output,
                        const LineReaderMaker& makeLines, const ComWorldsMaker& makeComWorlds) {
    CommandLine line(scenarios, version);
    try {
        line.app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ParseError& error) {
        return line.app.exit(error, output.out, output.error) == 0 ? ExitCode::Good : ExitCode::WrongUsage;
    }
    const ExitCode code = perform(line, makeWorld, makeComWorlds, makeLines, output);
    if (!output.out.flush()) {
        output.error << "exercise-host: the output could not be written\n";
        return ExitCode::WrongUsage;
    }
    return code;
}

} // namespace host
