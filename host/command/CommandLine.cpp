#include "host/command/CommandLine.h"

#include <CLI/CLI.hpp>

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
  exercise-host run 306 --course DIR     on the course's own files
  exercise-host recheck Méthodologie.ppt --question 306
  exercise-host list                     the questions and their scenarios
  exercise-host torture 306              every call of question 306 made to fail in every way
  exercise-host learners 306             random learners, judged by the module and by a second judge
  exercise-host bench                    what the questions cost in calls and time

Exit codes: 0 good, 1 a scenario fell short, 2 wrong usage or a wrong line in a scenario file, 3 a
scenario hung.)";

/// Takes a question's number as its file is named, too: 0306 is 306.
std::string questionNumber(const std::string& text) {
    return text.substr(std::min(text.find_first_not_of('0'), text.size()));
}

/// The command line with all that it can ask for.
struct CommandLine {
    CommandLine(const std::filesystem::path& scenarios, const std::string& version) : folder(scenarios.string()) {
        app.footer(examples);
        app.set_version_flag("--version", version);
        app.require_subcommand(0, 1); // so that an unknown word is named
        app.add_option("--scenarios", folder, "Folder of the scenario files")->capture_default_str();

        run.add_option("question", runRequest.question, "Number of the question")
            ->capture_default_str()
            ->transform(questionNumber);
        run.add_option("--scenario", runRequest.scenario, "Title of the scenario (the first that ends in a success)");
        run.add_flag("--json", runRequest.asJson, "Print one JSON object");
        run.add_flag("--trace", runRequest.withTrace, "List every call that leaves the module, its time and outcome");

        run.add_option("--picture", runRequest.pictures, "Folder for pictures of the slide before and after");
        run.add_option("--course", runRequest.course, "Folder of the course's own files (07305306.ppt ...)");

        tryOut.add_option("question", tried, "Number of the question")->required()->transform(questionNumber);

        recheck.add_option("file", recheckRequest.file, "A working presentation that a learner has saved")->required();
        recheck.add_option("--question", recheckRequest.question, "Number of the question")
            ->required()
            ->transform(questionNumber);
        recheck.add_option("--course", recheckRequest.course, "Folder of the course's own files");

        verify.add_option("questions", verifyRequest.questions, "Numbers of questions (all)")
            ->transform(questionNumber);
        verify.add_option("--file", verifyRequest.files, "A scenario file");
        verify.add_option("--report", verifyRequest.page, "Write a page of all scenarios, with pictures (F.html)");
        verify.add_option("--junit", verifyRequest.junit, "Write a report as build servers read it (F.xml)");
        verify.add_option("--json", verifyRequest.json, "Write a report as JSON (F.json)");

        list.add_option("questions", listed, "Numbers of questions (all)")->transform(questionNumber);

        torture.add_option("questions", tortureRequest.questions, "Numbers of questions (all)")
            ->transform(questionNumber);
        torture.add_option("--every", tortureRequest.every, "Make one call in so many fail")
            ->capture_default_str()
            ->check(CLI::PositiveNumber);
        torture.add_option("--draw", tortureRequest.draw, "Where --every begins (at random)");

        learners.add_option("questions", learnersRequest.questions, "Numbers of questions (all)")
            ->transform(questionNumber);
        learners.add_option("--runs", learnersRequest.runs, "Learners of a question")
            ->capture_default_str()
            ->check(CLI::PositiveNumber);
        learners.add_option("--draw", learnersRequest.draw, "Number that the learners are drawn with (at random)");
        learners.add_option("--save", learnersRequest.folder, "Folder for the scenarios of disagreements")
            ->capture_default_str();

        bench.add_option("questions", benchRequest.questions, "Numbers of questions (all)")->transform(questionNumber);
        bench.add_option("--runs", benchRequest.runs, "Work through so many questions, and see what the process holds")
            ->check(CLI::PositiveNumber);

        for (CLI::App* const command : {&run, &tryOut, &verify}) {
            auto* const real = command->add_flag(
                "--powerpoint", withPowerPoint,
                "On Windows: drive the registered K73053.dll and the registered PowerPoint, not the embedded ones");
            command->add_option("--powerpoint-bits", powerPointBits, "Demand a stand-in of 32 or 64 bits")
                ->needs(real)
                ->check(CLI::IsMember({32, 64}));
        }
        for (CLI::App* const command : {&run, &tryOut, &verify, &recheck, &list, &torture, &learners, &bench}) {
            command->fallthrough();
        }
    }

    CLI::App app{purpose, "exercise-host"};
    std::string folder;
    RunRequest runRequest;
    VerifyRequest verifyRequest;
    RecheckRequest recheckRequest;
    std::int32_t tried = 0;
    std::vector<std::int32_t> listed;
    TortureRequest tortureRequest;
    LearnersRequest learnersRequest;
    BenchRequest benchRequest;
    bool withPowerPoint = false;
    std::int32_t powerPointBits = 0;
    CLI::App& run = *app.add_subcommand("run", "Tell the whole road of one question, and what the host reads last");
    CLI::App& tryOut = *app.add_subcommand("try", "Talk: state a learner's moves, see values, ask for the verdict");
    CLI::App& verify = *app.add_subcommand("verify", "Run scenarios and print what falls short");
    CLI::App& recheck = *app.add_subcommand("recheck", "Judge a saved working presentation, without a live PowerPoint");
    CLI::App& list = *app.add_subcommand("list", "List questions and scenarios");
    CLI::App& torture = *app.add_subcommand(
        "torture", "Make every call that leaves the module fail, and see that nothing is lost and no verdict wrong");
    CLI::App& learners = *app.add_subcommand("learners", "Let learners work at random, and judge them a second time");
    CLI::App& bench = *app.add_subcommand("bench", "Measure calls, time and memory");
};

/// What the command is to run in. Raises UsageError where there is no such thing.
WorldMaker worldsFor(const CommandLine& asked, const WorldMaker& embedded, const ComWorldsMaker& makeComWorlds) {
    if (!asked.withPowerPoint) {
        return embedded;
    }
    if (makeComWorlds == nullptr) {
        throw UsageError("--powerpoint needs Windows; here only the embedded PowerPoint runs");
    }
    return makeComWorlds(asked.powerPointBits);
}

ExitCode perform(const CommandLine& asked, const WorldMaker& embedded, const ComWorldsMaker& makeComWorlds,
                 const LineReaderMaker& makeLines, Output output) {
    try {
        const Library library(asked.folder);
        const WorldMaker makeWorld = worldsFor(asked, embedded, makeComWorlds);
        Progress progress(output.error, output.isTerminal);
        if (asked.app.get_subcommands().empty()) {
            throw UsageError("run, try, verify, list, torture, learners or bench? See exercise-host --help");
        }
        if (asked.run) {
            return run(asked.runRequest, library, makeWorld, output.out);
        }
        if (asked.tryOut) {
            return tryOut(asked.tried, library, makeWorld, *makeLines(), output.out);
        }
        if (asked.recheck) {
            return recheck(asked.recheckRequest, library, makeWorld, output.out);
        }
        if (asked.torture) {
            return runTorture(asked.tortureRequest, library, makeWorld, output.out, progress);
        }
        if (asked.learners) {
            return runLearners(asked.learnersRequest, library, output.out);
        }
        if (asked.bench) {
            return runBench(asked.benchRequest, library, makeWorld, output.out, progress);
        }
        return asked.verify ? verify(asked.verifyRequest, library, makeWorld, output.out, progress)
                            : list(asked.listed, library, output.out);
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
    line.verifyRequest.countsCalls = !line.withPowerPoint;
    const ExitCode code = perform(line, makeWorld, makeComWorlds, makeLines, output);
    if (!output.out.flush()) {
        output.error << "exercise-host: the output could not be written\n";
        return ExitCode::WrongUsage;
    }
    return code;
}

} // namespace host
