#include "host/command/Commands.h"
#include "host/world/EmbeddedWorld.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace {

using host::ExitCode;

constexpr const char* examples = R"(Examples:
  exercise-host run                      the whole road of question 306
  exercise-host run 307 --json           the same of 307, as one JSON object
  exercise-host run 306 --scenario "Une occurrence oubliée" --trace
  exercise-host verify                   all scenarios of all questions
  exercise-host verify 306 307
  exercise-host verify --file mine.scn   a scenario file of your own
  exercise-host list                     the questions and their scenarios

Exit codes: 0 good, 1 a scenario fell short, 2 wrong usage or a wrong line in a scenario file.)";

/// Scenarios beside the program come before those of the sources.
std::string scenarioFolder(const std::filesystem::path& program) {
    const std::filesystem::path beside = program.parent_path() / "scenarios";
    return std::filesystem::is_directory(beside) ? beside.string() : EXERCISE_HOST_SCENARIOS;
}

/// Says what is wrong with the command line or a scenario file, where it ends the program.
template <typename Command> ExitCode explained(const Command& command) {
    try {
        return command();
    } catch (const host::language::WrongLines& wrong) {
        for (const host::language::Remark& remark : wrong.remarks) {
            std::cerr << remark.in(wrong.file) << '\n';
        }
    } catch (const host::UsageError& error) {
        std::cerr << "exercise-host: " << error.what() << '\n';
    }
    return ExitCode::WrongUsage;
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app("Runs the exercises of a PowerPoint course: stages a question, makes a learner's moves, asks the "
                 "module for its verdict.",
                 "exercise-host");
    app.footer(examples);
    app.set_version_flag("--version", EXERCISE_HOST_VERSION);
    app.require_subcommand(1);
    app.fallthrough();
    std::string folder = scenarioFolder(argv[0]);
    app.add_option("--scenarios", folder, "Folder of the scenario files")->capture_default_str();

    host::RunRequest runRequest;
    CLI::App& run = *app.add_subcommand("run", "Tell the whole road of one question, and what the host reads last");
    run.add_option("question", runRequest.question, "Number of the question")->capture_default_str();
    run.add_option("--scenario", runRequest.scenario, "Title of the scenario (the first that ends in a success)");
    run.add_flag("--json", runRequest.asJson, "Print one JSON object");
    run.add_flag("--trace", runRequest.withTrace, "List every call that leaves the module, with its time and outcome");

    host::VerifyRequest verifyRequest;
    CLI::App& verify = *app.add_subcommand("verify", "Run scenarios and print what falls short");
    verify.add_option("questions", verifyRequest.questions, "Numbers of questions (all)");
    verify.add_option("--file", verifyRequest.files, "A scenario file");

    std::vector<std::int32_t> listed;
    CLI::App& list = *app.add_subcommand("list", "List questions and scenarios");
    list.add_option("questions", listed, "Numbers of questions (all)");

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : static_cast<int>(ExitCode::WrongUsage);
    }
    return static_cast<int>(explained([&] {
        const host::Library library(folder);
        if (run) {
            return host::run(runRequest, library, host::makeEmbeddedWorld, std::cout);
        }
        return verify ? host::verify(verifyRequest, library, host::makeEmbeddedWorld, std::cout)
                      : host::list(listed, library, std::cout);
    }));
}
