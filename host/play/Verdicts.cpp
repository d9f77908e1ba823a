#include "host/play/Verdicts.h"

#include "automation/Text.h"
#include "host/run/GeneralCode.h"

namespace host {

namespace {

using automation::toUtf8;

/// What the question's file declares for it; null where it does not.
const language::Meaning* declaredFor(const Reading& reading, const language::Contract& contract) {
    const auto found = std::find_if(contract.meanings.begin(), contract.meanings.end(),
                                    [&](const language::Meaning& each) { return each.verdict.matches(reading); });
    if (found != contract.meanings.end()) {
        return &*found;
    }
    return reading.error || reading.erreurGenerale ? nullptr : contract.meaningOf(reading.causeErreur);
}

} // namespace

nlohmann::json verdictOf(const Reading& reading, const language::ScenarioFile& file) {
    const language::Meaning* const declared = declaredFor(reading, file.contract);
    const bool isError = reading.error && reading.error->number() != 0;
    const bool passed =
        !reading.erreurGenerale && !isError && (reading.error || reading.causeErreur.empty() || reading.bravoNuance);
    return {{"passed", passed},
            {"letter", toUtf8(reading.causeErreur)},
            {"general", reading.erreurGenerale},
            {"reads", reading.display()},
            {"meaning", declared != nullptr
                            ? toUtf8(declared->text)
                            : std::string(reading.erreurGenerale ? meaningOfGeneralCode(reading.causeErreur)
                                                                 : std::string_view())}};
}

} // namespace host
