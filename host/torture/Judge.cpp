#include "host/torture/Judge.h"

#include "automation/Text.h"

namespace host::torture {

namespace {

using automation::Border;
using automation::Error;
using automation::RunTimeError;
using Kind = Fault::Kind;

constexpr auto registryError = static_cast<std::int32_t>(0x800403E8U);
constexpr std::u16string_view registryText =
    u"Impossible d'accéder en lecture-écriture à la clé de base de registre\n\r";
constexpr std::u16string_view classPrefix = u"DLL K61027 - CLASSE ";
constexpr std::u16string_view servicePrefix = u"\n\r - SERVICE ";
constexpr std::u16string_view objectPrefix = u" - OBJET ";

/// The beginning of an error report's source.
std::u16string reportOf(std::u16string_view className, std::u16string_view service) {
    return std::u16string(classPrefix).append(className).append(servicePrefix).append(service).append(objectPrefix);
}

std::vector<std::u16string_view> servicesOf(HostCall call) {
    if (call == HostCall::InitQuestion) {
        return {u"GetApplication", u"InitQuestion", u"Nettoyage", u"Renomme", u"ChangeDir"};
    }
    return call == HostCall::TestePoint ? std::vector<std::u16string_view>()
                                        : std::vector<std::u16string_view>{u"Nettoyage"};
}

bool isGeneralCode(std::u16string_view code) {
    constexpr std::array<std::u16string_view, 9> codes{u"AK", u"%AL", u"AM", u"A", u"C", u"D", u"E", u"F", u"G"};
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

bool isSameError(const std::optional<Error>& left, const std::optional<Error>& right) {
    return left.has_value() == right.has_value() &&
           (!left || (left->number() == right->number() && left->source() == right->source()));
}

bool isSameVerdict(const Reading& left, const Reading& right) {
    return isSameError(left.error, right.error) && left.erreurGenerale == right.erreurGenerale &&
           left.causeErreur == right.causeErreur && left.bravoNuance == right.bravoNuance &&
           left.complement == right.complement;
}

} // namespace

std::string_view nameOf(Answer answer) noexcept {
    switch (answer) {
    case Answer::Reported: return "reported with class and service";
    case Answer::Registry: return "named the registry key";
    case Answer::Straight: return "raised straight";
    case Answer::Code: return "general code";
    case Answer::Letter: return "letter";
    case Answer::Silence: return "passed over";
    case Answer::Wrong: return "wrong";
    }
    return "";
}

Answer Judge::answerOf(const Aftermath& aftermath, const Fault& fault) const {
    const auto& error = aftermath.error;
    if (error && !isSameError(error, flawless_.error)) {
        if (isReport(*error)) {
            return Answer::Reported;
        }
        if (error->number() == registryError && error->source().starts_with(registryText)) {
            return Answer::Registry;
        }
        const bool isOwn =
            fault.isDeath() ? automation::remote::isDead(error->number()) : isSameError(error, fault.error());
        return isOwn ? Answer::Straight : Answer::Wrong;
    }
    if (aftermath.reading && !isSameVerdict(*aftermath.reading, *flawless_.reading)) {
        return aftermath.reading->erreurGenerale ? Answer::Code : Answer::Letter;
    }
    return Answer::Silence;
}

bool Judge::mayAnswer(Answer answer, const Aftermath& aftermath, const Call& call, const Fault& fault) const {
    const bool isAutomation = call.border == Border::Automation;
    if (fault.isDelay()) {
        // Whether PowerPoint answers is asked once: it is refused, then, and the answer is no.
        const bool isAskedOnce = call.text.starts_with(u"Application.WindowState") && fault.kind == Kind::Refuses;
        return answer == Answer::Silence ||
               (isAskedOnce && answer == Answer::Code && aftermath.reading->causeErreur == u"%AL");
    }
    const auto reaches = [&](Border border) {
        return call.border == border || (fault.lasting == Fault::Lasting::FromThereOn && fault.fits(border));
    };
    switch (answer) {
    case Answer::Reported: {
        const std::int32_t number = aftermath.error->number();
        if (fault.isDeath()) {
            return automation::remote::isDead(number);
        }
        // Without an answer the measurement system is no number.
        const bool isEmptyNumber =
            call.border == Border::Locale && number == static_cast<std::int32_t>(RunTimeError::TypeMismatch);
        return number == fault.error().number() || (!isAutomation && number == registryError) || isEmptyNumber;
    }
    case Answer::Registry: return fault.kind == Kind::AccessDenied;
    case Answer::Straight: return reaches(Border::Automation) && !(isAutomation && call.isOfPrepare);
    case Answer::Code: {
        const std::u16string& code = aftermath.reading->causeErreur;
        // A PowerPoint that refuses calls is there, and its window too.
        return isAutomation && !fault.isDeath() ? code == u"%AL" : isGeneralCode(code);
    }
    case Answer::Letter: return question_ == 304 && reaches(Border::File); // files that cannot be found
    case Answer::Silence: return !(isAutomation && call.isOfPrepare && !fault.isDeath());
    case Answer::Wrong: return false;
    }
    return false;
}

std::vector<std::string> Judge::findings(const Aftermath& aftermath, const Call& call, const Fault& fault) const {
    std::vector<std::string> all = aftermath.findings;
    // A bar that could not be read before it was arranged cannot be put back, nor can those of a process that has died.
    if (!(call.isOfLayout && fault.lasting == Fault::Lasting::Once) && fault.kind != Kind::Dies) {
        all.insert(all.end(), aftermath.bars.begin(), aftermath.bars.end());
    }
    const Answer answer = answerOf(aftermath, fault);
    if (!mayAnswer(answer, aftermath, call, fault)) {
        all.push_back("the host must not get: " + std::string(nameOf(answer)) +
                      (aftermath.error ? ", " + inWords(*aftermath.error) : "") +
                      (aftermath.reading ? ", " + aftermath.reading->display() : ""));
    }
    if (call.isOfPrepare && call.border == Border::Automation && aftermath.error &&
        !isReportOfPrepare(*aftermath.error, fault)) {
        all.push_back("a failure in Prepare is reported as " + inWords(*aftermath.error));
    }
    if (aftermath.powerPointEnded && !fault.isDeath() && fault.kind != Kind::AccessDenied) {
        all.emplace_back("the learner's PowerPoint has been ended");
    }
    return all;
}

bool Judge::isReport(const Error& error) const {
    const std::u16string& source = error.source();
    const auto begins = [&](std::u16string_view owner, std::u16string_view service) {
        return source.starts_with(reportOf(owner, service));
    };
    const auto services = servicesOf(operation_.call);
    if (std::any_of(services.begin(), services.end(), [&](auto service) { return begins(u"Module", service); })) {
        return true;
    }
    return (operation_.call == HostCall::InitQuestion && begins(className(), u"Prepare")) ||
           (operation_.call == HostCall::TestePoint && begins(className(), u"TestePoint"));
}

bool Judge::isReportOfPrepare(const Error& error, const Fault& fault) const {
    const std::u16string report = reportOf(className(), u"Prepare");
    if (fault.isDeath()) {
        return error.source().starts_with(report);
    }
    return error.source() == report + fault.error().source() && error.number() == fault.error().number();
}

std::u16string Judge::className() const {
    return u"Question0" + automation::decimal(question_);
}

} // namespace host::torture
