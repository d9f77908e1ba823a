#include "host/command/Commands.h"

#include "automation/Text.h"

#include <ostream>

namespace host {

ExitCode list(const std::vector<std::int32_t>& questions, const Library& library, std::ostream& out) {
    for (const std::filesystem::path& path : questions.empty() ? library.files() : library.filesOf(questions)) {
        const language::ScenarioFile file = load(path);
        out << path.filename().string() << ": question " << file.question << '\n';
        for (const language::Scenario& scenario : file.scenarios) {
            out << "    " << automation::toUtf8(scenario.title) << '\n';
        }
    }
    return ExitCode::Good;
}

} // namespace host
