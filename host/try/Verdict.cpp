#include "host/try/Verdict.h"

#include "host/language/Words.h"

#include <ostream>

namespace host {

namespace {

std::string meaningOf(const Reading& reading) {
    const std::string& meaning = reading.meaning;
    const std::string told = meaning.empty() ? "." : ": " + meaning + ".";
    if (reading.error && reading.error->number() != 0) {
        return "The module has failed: the host reads no verdict" + told;
    }
    if (reading.erreurGenerale) {
        return "The question's own checks were not made" + told;
    }
    if (reading.error || reading.causeErreur.empty()) {
        return "The learner has done what is asked.";
    }
    return reading.bravoNuance ? "The learner has done what is asked, with this remark" + told
                               : "The learner has not done what is asked" + told;
}

void printReading(const Reading& reading, std::ostream& out) {
    out << "ErreurGenerale " << (reading.erreurGenerale ? "True" : "False") << ", CauseErreur "
        << inQuotes(reading.causeErreur) << ", BravoNuance " << (reading.bravoNuance ? "True" : "False")
        << ", Complement " << (reading.complement.empty() ? "empty" : inQuotes(reading.complement));
}

/// The titles of scenarios, a few of them.
void printAlike(const Reading& reading, const language::ScenarioFile& file, std::ostream& out) {
    constexpr std::size_t most = 3;
    std::size_t found = 0;
    for (const language::Scenario& scenario : file.scenarios) {
        const Expectation* const last = scenario.lastExpectation();
        if (last != nullptr && last->matches(reading) && found < most) {
            out << (found == 0 ? "Scenarios that end so: " : ", ") << inQuotes(scenario.title);
            ++found;
        }
    }
    out << (found == 0 ? "" : "\n");
}

} // namespace

void explain(const Reading& reading, const language::ScenarioFile& file, std::ostream& out) {
    out << "The host reads " << reading.display();
    if (!reading.error) {
        out << ": ";
        printReading(reading, out);
    }
    out << ".\n" << meaningOf(reading) << '\n';
    if (!reading.reason.empty()) {
        out << reading.reason << '\n';
    }
    printAlike(reading, file, out);
}

} // namespace host
