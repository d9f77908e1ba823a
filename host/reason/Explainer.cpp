#include "host/reason/Explainer.h"

#include "automation/Text.h"
#include "host/reason/Reason.h"
#include "host/run/GeneralCode.h"

#include <algorithm>

namespace host::reason {

namespace {

std::string meaningOf(const Reading& reading, const language::Contract& contract) {
    if (reading.erreurGenerale && !reading.error) {
        return std::string(meaningOfGeneralCode(reading.causeErreur));
    }
    const auto says = [&](const language::Meaning& meaning) {
        const Expectation& verdict = meaning.verdict;
        return reading.error ? verdict.matches(reading)
                             : !verdict.letter.empty() && verdict.letter == reading.causeErreur;
    };
    const auto found = std::find_if(contract.meanings.begin(), contract.meanings.end(), says);
    return found == contract.meanings.end() ? std::string() : automation::toUtf8(found->text);
}

} // namespace

void Explainer::calling(HostCall call) {
    if (call == HostCall::InitQuestion) {
        trail_->prepare();
        before_.clear();
    }
    trail_->begin();
}

void Explainer::explain(Reading& reading) {
    reading.meaning = meaningOf(reading, contract_);
    const bool isPlainSuccess = !reading.error && reading.causeErreur.empty();
    const bool isAsBefore = !reading.erreurGenerale && !reading.error && reading.causeErreur == before_;
    reading.reason = isPlainSuccess ? ""
                     : isAsBefore   ? "It may be left from the check before, as no check clears it. " +
                                        reasonOf(*trail_, reading, delivered_)
                                  : reasonOf(*trail_, reading, delivered_);
    before_ = reading.erreurGenerale ? u"" : reading.causeErreur;
}

} // namespace host::reason
