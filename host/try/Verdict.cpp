#include "host/try/Verdict.h"

#include "automation/Text.h"

#include <ostream>

namespace host {

namespace {

using automation::toUtf8;

struct GeneralCode {
    std::u16string_view code;
    std::string_view meaning;
};

constexpr auto generalCodes = std::to_array<GeneralCode>({
    {u"AK", "PowerPoint is gone, or not to be seen"},
    {u"%AL", "PowerPoint does not answer"},
    {u"AM", "PowerPoint's main window is gone"},
    {u"A", "the working presentation is not open"},
    {u"C", "a slide that was prepared is missing"},
    {u"D", "the slides are not as many as were prepared, or the same preparation was checked before"},
    {u"E", "the slides are not in their order"},
    {u"F", "the presentation that is open lies in another folder"},
    {u"G", "the working presentation is not the active one"},
});

std::string meaningOf(const Reading& reading) {
    if (reading.error && reading.error->number() != 0) {
        return "The module has failed: the host reads no verdict.";
    }
    if (reading.erreurGenerale) {
        const auto* const found = std::find_if(generalCodes.begin(), generalCodes.end(), [&](const GeneralCode& each) {
            return each.code == reading.causeErreur;
        });
        return found == generalCodes.end()
                   ? std::string("The question's own checks were not made.")
                   : "The question's own checks were not made: " + std::string(found->meaning) + ".";
    }
    if (reading.error || reading.causeErreur.empty()) {
        return "The learner has done what is asked.";
    }
    return reading.bravoNuance ? "The learner has done what is asked; the course adds its remark for this letter."
                               : "The learner has not done what is asked; the course says why, by its text for this "
                                 "letter.";
}

void printReading(const Reading& reading, std::ostream& out) {
    out << "ErreurGenerale " << (reading.erreurGenerale ? "True" : "False") << ", CauseErreur \""
        << toUtf8(reading.causeErreur) << "\", BravoNuance " << (reading.bravoNuance ? "True" : "False")
        << ", Complement ";
    for (std::size_t i = 0; i < reading.complement.size(); ++i) {
        out << (i == 0 ? "\"" : ", \"") << toUtf8(reading.complement[i]) << '"';
    }
    out << (reading.complement.empty() ? "empty" : "");
}

/// The titles of scenarios, a few of them.
void printAlike(const Reading& reading, const language::ScenarioFile& file, std::ostream& out) {
    constexpr std::size_t most = 3;
    std::size_t found = 0;
    for (const language::Scenario& scenario : file.scenarios) {
        const Expectation* const last = scenario.lastExpectation();
        if (last != nullptr && last->matches(reading) && found < most) {
            out << (found == 0 ? "Scenarios that end so: \"" : ", \"") << toUtf8(scenario.title) << '"';
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
    printAlike(reading, file, out);
}

} // namespace host
