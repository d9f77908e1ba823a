#include "host/learners/ScenarioText.h"

#include "automation/Text.h"

#include <iomanip>
#include <sstream>

namespace host::learners {

namespace {

using automation::toUtf8;

std::string quoted(const std::u16string& text) {
    return "\"" + toUtf8(text) + "\"";
}

std::string hexadecimal(std::int32_t number) {
    std::ostringstream digits;
    digits << "&H" << std::uppercase << std::hex << std::setw(8) << std::setfill('0')
           << static_cast<std::uint32_t>(number);
    return digits.str();
}

/// The statements of one check.
std::string checkOf(const Reading& wanted) {
    if (wanted.error) {
        const std::int32_t number = wanted.error->number();
        return "check error " + (number < 0 ? hexadecimal(number) : std::to_string(number)) +
               "\n  expect Host.CauseErreur = " + quoted(wanted.causeErreur);
    }
    if (wanted.erreurGenerale) {
        return "check general " + quoted(wanted.causeErreur) +
               (wanted.bravoNuance ? "\n  expect Host.BravoNuance = True" : "");
    }
    std::string text = wanted.causeErreur.empty() && !wanted.bravoNuance
                           ? std::string("check success")
                           : "check " + std::string(wanted.bravoNuance ? "remark " : "") + quoted(wanted.causeErreur);
    for (std::size_t i = 0; i < wanted.complement.size(); ++i) {
        text += (i == 0 ? " complement " : ", ") + quoted(wanted.complement[i]);
    }
    return text;
}

} // namespace

std::string scenarioText(const language::ScenarioFile& file, const Moves& moves, const std::vector<Finding>& findings,
                         const std::string& title) {
    std::string text = "question " + std::to_string(file.question) + "\n\ncourse\n";
    for (const language::Statement& statement : file.course) {
        text += "  " + toUtf8(statement.text) + "\n";
    }
    text += "\nscenario \"" + title + "\"\n";
    std::size_t check = 0;
    for (const std::u16string& move : moves) {
        text += "  " + (move == checkMove ? checkOf(findings.at(check++).wanted) : toUtf8(move)) + "\n";
    }
    return text;
}

} // namespace host::learners
