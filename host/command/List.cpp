#include "host/command/Commands.h"
#include "host/command/Options.h"
#include "host/world/RealFile.h"

#include "automation/Text.h"

#include <ostream>

namespace host {

namespace {

/// Prints what questions ask and their scenarios.
ExitCode list(const std::vector<std::string>& named, const Library& library, std::ostream& out) {
    for (const language::ScenarioFile& file : load(library.filesNamed(named))) {
        out << pathOf(file.name).filename().string() << ": ";
        if (file.className.empty()) {
            out << "question " << file.question << '\n';
        } else {
            out << "PowerPoint's class " << automation::toUtf8(file.className) << '\n';
        }
        if (!file.contract.task.empty()) {
            out << "  " << automation::toUtf8(file.contract.task) << '\n';
        }
        for (const language::Scenario& scenario : file.scenarios) {
            out << "    " << automation::toUtf8(scenario.title) << '\n';
        }
    }
    return ExitCode::Good;
}

} // namespace

Action addList(CLI::App& command) {
    const auto questions = std::make_shared<std::vector<std::string>>();
    addScenarioFiles(command, *questions);
    return [questions](const CommandContext& at) { return list(*questions, at.library, at.out); };
}

} // namespace host
