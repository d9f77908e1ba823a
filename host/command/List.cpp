#include "host/command/Commands.h"
#include "host/command/Options.h"

#include "automation/Text.h"

#include <ostream>

namespace host {

namespace {

/// Prints the scenarios of questions, of all where none is named.
ExitCode list(const std::vector<std::int32_t>& questions, const Library& library, std::ostream& out) {
    for (const std::filesystem::path& path : questions.empty() ? library.files() : library.filesOf(questions)) {
        const language::ScenarioFile file = load(path);
        out << path.filename().string() << ": ";
        if (file.className.empty()) {
            out << "question " << file.question << '\n';
        } else {
            out << "PowerPoint's class " << automation::toUtf8(file.className) << '\n';
        }
        for (const language::Scenario& scenario : file.scenarios) {
            out << "    " << automation::toUtf8(scenario.title) << '\n';
        }
    }
    return ExitCode::Good;
}

} // namespace

Action addList(CLI::App& command) {
    const auto questions = std::make_shared<std::vector<std::int32_t>>();
    addQuestions(command, *questions);
    return [questions](const CommandContext& at) { return list(*questions, at.library, at.out); };
}

} // namespace host
