#include "host/command/CommandLine.h"
#include "host/command/Options.h"
#include "host/command/Trouble.h"
#include "host/language/Folding.h"
#include "host/language/Likeness.h"
#include "host/world/EmbeddedWorld.h"
#include "host/world/RealFile.h"

#include "automation/Text.h"

#include <algorithm>

namespace host {

namespace {

constexpr const char* exitCodes = "\n\nExit codes: 0 good, 1 something fell short, 2 wrong usage or a wrong line in a\n"
                                  "scenario file, 3 something hung, 4 the computer had no room on its disk or no\n"
                                  "folder for temporary files.";

std::string footerOf(const std::string& examples) {
    return "Examples:\n" + examples + exitCodes;
}

/// The command line with what it asks for.
struct CommandLine {
    CommandLine(const Program& program, const std::filesystem::path& scenarios, const std::string& version)
        : app(program.purpose, program.name), folder(scenarios.string()) {
        constexpr std::size_t widthOfNames = 26;
        app.get_formatter()->column_width(widthOfNames);
        app.footer(footerOf(program.examples));
        app.set_version_flag("--version", version);
        app.require_subcommand(0, 1); // so that an unknown word is named
        app.add_option("--scenarios", folder, "Folder of the scenario files")->capture_default_str();
        app.add_option("--like", like, "documented: PowerPoint's way on contested points")
            ->check(CLI::IsMember({"documented"}));
        for (const Command& each : program.commands) {
            CLI::App& command = *app.add_subcommand(each.name, each.what);
            command.callback([this, action = each.add(command)] { chosen = action; });
            command.fallthrough();
            if (*each.examples != '\0') {
                command.footer(footerOf(each.examples));
            }
            if (each.takesPowerPoint) {
                auto* const real = command.add_flag(
                    "--powerpoint", withPowerPoint,
                    "On Windows: work with the registered K73053.dll and\nPowerPoint, not with the embedded ones");
                command.add_option("--powerpoint-bits", powerPointBits, "Demand a stand-in of 32 or 64 bits")
                    ->needs(real)
                    ->check(CLI::IsMember({32, 64}));
            }
        }
    }

    CLI::App app;
    std::string folder;
    Action chosen;    ///< empty where no command is named
    std::string like; ///< "documented", or empty
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
    return withTroubleTold(asked.app.get_name(), output.error, [&] {
        if (asked.chosen == nullptr) {
            throw UsageError("which command? See " + asked.app.get_name() + " --help");
        }
        const Library library(pathOf(asked.folder));
        const WorldMaker real = remoteWorlds(asked, makeComWorlds);
        if (real && !asked.like.empty()) {
            throw UsageError("--like is for the embedded PowerPoint, and --powerpoint for another");
        }
        const WorldMaker remote = real ? [&](const automation::ObserverPtr&) { return real(nullptr); } : WorldMaker();
        const WorldMaker documented = makeDocumentedWorld;
        const WorldMaker& inMemory = asked.like.empty() ? embedded : documented;
        Progress progress(unfolded(output.error), output.columns);
        return asked.chosen(
            {library, {inMemory, remote, real ? real : inMemory}, makeLines, output.out, progress, output.ink});
    });
}

/// What is said of the first word that is no command and no option of the one that is asked.
std::string unknownWord(const CLI::App& app, const std::vector<std::string>& arguments) {
    const std::vector<std::string> unknown = app.remaining(true);
    const auto first = std::find_first_of(arguments.begin(), arguments.end(), unknown.begin(), unknown.end());
    const std::string word = first == arguments.end() ? unknown.front() : *first;
    const std::vector<CLI::App*> asked = app.get_subcommands();
    std::vector<std::u16string> names;
    const auto add = [&](const std::string& name) { names.push_back(automation::fromUtf8(name)); };
    for (const CLI::App* const each : {&app, asked.empty() ? &app : asked.front()}) {
        for (const CLI::Option* const option :
             each->get_options([](const CLI::Option* any) { return !any->get_lnames().empty(); })) {
            add(option->get_name());
        }
    }
    for (const CLI::App* const command : app.get_subcommands(nullptr)) {
        add(asked.empty() ? command->get_name() : app.get_name());
    }
    const std::string like =
        automation::toUtf8(language::suggestion(automation::fromUtf8(word), {names.begin(), names.end()}));
    const std::string what = word.starts_with('-') ? "no option '"
                             : asked.empty()       ? "no command '"
                                                   : "nothing to do with '";
    return what + word + '\'' + (like.empty() ? "." : like) + " See " + app.get_name() +
           (asked.empty() ? "" : " " + asked.front()->get_name()) + " --help";
}

/// Reads the command line, and does what it says.
ExitCode obey(CommandLine& line, const std::vector<std::string>& arguments, const WorldMaker& makeWorld,
              const ComWorldsMaker& makeComWorlds, const LineReaderMaker& makeLines, Output output) {
    try {
        line.app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ExtrasError&) {
        output.error << line.app.get_name() << ": " << unknownWord(line.app, arguments) << '\n';
        return ExitCode::WrongUsage;
    } catch (const CLI::ParseError& error) {
        return line.app.exit(error, output.out, output.error) == 0 ? ExitCode::Good : ExitCode::WrongUsage;
    }
    return perform(line, makeWorld, makeComWorlds, makeLines, output);
}

} // namespace

ExitCode runCommandLine(const Program& program, const std::vector<std::string>& arguments,
                        const std::filesystem::path& scenarios, const std::string& version, const WorldMaker& makeWorld,
                        Output output, const LineReaderMaker& makeLines, const ComWorldsMaker& makeComWorlds) {
    CommandLine line(program, scenarios, version);
    const ExitCode code = obey(line, arguments, makeWorld, makeComWorlds, makeLines, output);
    if (!output.out.flush()) {
        output.error << program.name << ": the output could not be written: is the disk full?\n";
        return ExitCode::Machine;
    }
    return code;
}

} // namespace host
