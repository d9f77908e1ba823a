#include "tests/trials/torture/Checker.h"

#include "automation/Text.h"

namespace trials::torture {

namespace {

using automation::Error;
using Kind = Fault::Kind;
using Lasting = Fault::Lasting;

bool isSameError(const std::optional<Error>& left, const std::optional<Error>& right) {
    return left.has_value() == right.has_value() &&
           (!left || (left->number() == right->number() && left->source() == right->source()));
}

} // namespace

bool isSameVerdict(const Reading& left, const Reading& right) {
    return isSameError(left.error, right.error) && left.erreurGenerale == right.erreurGenerale &&
           left.causeErreur == right.causeErreur && left.bravoNuance == right.bravoNuance &&
           left.complement == right.complement;
}

Assessment Checker::assess(const Outcome& outcome, std::size_t position, const Fault& fault) const {
    const Expected expected = expectedFor(question_, operation_, route_, position, fault);
    Assessment assessment{Answer::Wrong, outcome.findings};
    std::vector<std::string>& findings = assessment.findings;
    findings.insert(findings.end(), outcome.presentations.begin(), outcome.presentations.end());
    if (!outcome.isStruck) {
        findings.emplace_back("the fault has not struck");
    }
    // The bar that could not be read before it was arranged cannot be put back, nor can those of a process that has
    // died.
    const bool isUnread =
        route_[position].phase == Phase::Layout && fault.lasting == Lasting::Once && outcome.bars.size() <= 1;
    if (!isUnread && fault.kind != Kind::Dies) {
        findings.insert(findings.end(), outcome.bars.begin(), outcome.bars.end());
    }
    if (isAnsweredBy(expected, outcome)) {
        assessment.answer = expected.answer;
    } else {
        findings.push_back("the host gets" + (outcome.error ? " " + inWords(*outcome.error) : " no error") +
                           (outcome.reading ? ", " + outcome.reading->display() : "") +
                           ", and not: " + expected.display());
    }
    if (outcome.powerPointEnded && !mayEndPowerPoint(position, fault)) {
        findings.emplace_back("the learner's PowerPoint has been ended");
    }
    return assessment;
}

bool Checker::isAnsweredBy(const Expected& expected, const Outcome& outcome) const {
    const std::optional<Error>& error = outcome.error;
    const std::optional<Reading>& reading = outcome.reading;
    switch (expected.answer) {
    case Answer::Reported:
    case Answer::Straight: return error && expected.admits(*error);
    case Answer::Code: return !error && reading && reading->erreurGenerale && reading->causeErreur == expected.code;
    case Answer::Letter: return !error && reading && !reading->erreurGenerale && reading->causeErreur == expected.code;
    case Answer::Silence:
        return isSameError(error, flawless_.error) && (!reading || isSameVerdict(*reading, *flawless_.reading));
    case Answer::Wrong: break;
    }
    return false;
}

bool Checker::mayEndPowerPoint(std::size_t position, const Fault& fault) const {
    if (fault.isDeath()) {
        return true;
    }
    // A PowerPoint whose window is not visible is quit, and one whose window is no more is taken for one that the
    // module has started; where that cannot be asked it looks the same.
    const bool isLast = operation_.call == HostCall::Quitter;
    const auto isLook = [](const Call& call) { return call.member == u"isVisible" || call.member == u"className"; };
    const auto later = route_.subspan(position);
    return fault.kind == Kind::AccessDenied &&
           (isLook(later.front()) ||
            (fault.lasting == Lasting::FromThereOn && (!isLast || std::any_of(later.begin(), later.end(), isLook))));
}

} // namespace trials::torture
