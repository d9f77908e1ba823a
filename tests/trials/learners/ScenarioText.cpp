#include "tests/trials/learners/ScenarioText.h"

#include "automation/Text.h"
#include "host/language/Writer.h"

namespace trials::learners {

std::string scenarioText(const language::ScenarioFile& file, const Moves& moves, const std::vector<Finding>& findings,
                         const std::string& title) {
    std::vector<std::u16string> statements;
    std::size_t check = 0;
    for (const std::u16string& move : moves) {
        if (move == checkMove) {
            const std::vector<std::u16string> wanted = language::checkOf(findings.at(check++).wanted);
            statements.insert(statements.end(), wanted.begin(), wanted.end());
        } else {
            statements.push_back(move);
        }
    }
    return language::scenarioText(file, automation::fromUtf8(title), statements);
}

} // namespace trials::learners
