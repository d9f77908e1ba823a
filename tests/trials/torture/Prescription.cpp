#include "tests/trials/torture/Prescription.h"

#include "automation/Text.h"
#include "host/language/Expectation.h"

#include <algorithm>
#include <array>

namespace trials::torture {

namespace {

using automation::Border;
using automation::Error;
using automation::RunTimeError;
using Kind = Fault::Kind;

constexpr auto registryError = static_cast<std::int32_t>(0x800403E8U);
constexpr std::u16string_view registryText =
    u"Impossible d'accéder en lecture-écriture à la clé de base de registre\n\r";

/// What an error report gives as its object.
enum class Object : std::uint8_t { None, Description, Source };

/// What becomes of a failed call of a stage; what no rule names is passed over.
struct Rule {
    Stage stage;
    Border border;
    std::u16string_view member; ///< any where it is empty
    Answer answer;
    std::u16string_view className = {}; ///< that of the question where it is empty
    std::u16string_view service = {};
    Object object = Object::None;
};

constexpr std::array rules{
    Rule{Stage::Obtaining, Border::Automation, u"attach", Answer::Silence},
    Rule{Stage::Obtaining, Border::Automation, u"ShowStartupDialog", Answer::Silence},
    Rule{Stage::Obtaining, Border::Automation, {}, Answer::Reported, u"Module", u"GetApplication", Object::Description},
    Rule{Stage::Saving, Border::Automation, {}, Answer::Straight},
    Rule{Stage::Saving, Border::Registry, u"open", Answer::Registry},
    Rule{Stage::Saving, Border::Registry, u"query", Answer::Registry},
    Rule{Stage::Cleaning, Border::Automation, {}, Answer::Reported, u"Module", u"Nettoyage", Object::Description},
    Rule{Stage::Restoring, Border::Registry, u"open", Answer::Registry},
    Rule{Stage::Creating, Border::Registry, u"open", Answer::Reported, u"Module", u"InitQuestion", Object::Description},
    Rule{Stage::Creating, Border::Registry, u"query", Answer::Reported, u"Module", u"InitQuestion",
         Object::Description},
    Rule{Stage::Staging, Border::File, {}, Answer::Reported, u"Module", u"Renomme", Object::Description},
    Rule{Stage::Tooltips, Border::Automation, {}, Answer::Straight},
    Rule{Stage::Preparing, Border::Automation, {}, Answer::Reported, {}, u"Prepare", Object::Source},
    Rule{Stage::Preparing, Border::Locale, {}, Answer::Reported, {}, u"Prepare", Object::Source},
    Rule{Stage::Pointing, Border::Registry, u"open", Answer::Reported, u"Module", u"ChangeDir", Object::Description},
    Rule{Stage::Fronting, Border::Automation, {}, Answer::Straight},
    Rule{Stage::Examining, Border::Automation, {}, Answer::Straight},
    Rule{Stage::Checking, Border::Automation, {}, Answer::Reported, {}, u"TestePoint", Object::Source},
    Rule{Stage::Checking, Border::File, {}, Answer::Letter}, // question 304 finds no files
    Rule{Stage::Ending, Border::Automation, {}, Answer::Straight},
};

const Rule* ruleFor(const Call& call, Operation operation) {
    if (operation.isHeld && call.stage == Stage::Saving && call.member == u"query") {
        return nullptr; // the learner's folders have been kept since the question held was begun
    }
    for (const Rule& each : rules) {
        if (each.stage == call.stage && each.border == call.border &&
            (each.member.empty() || each.member == call.member)) {
            return each.answer == Answer::Silence ? nullptr : &each;
        }
    }
    return nullptr;
}

/// What fails where a call does, before anybody reports it.
Error failureOf(const Call& call, const Fault& fault) {
    switch (call.border) {
    case Border::Registry: {
        const std::u16string text = std::u16string(registryText) + call.key;
        return Error(registryError, text, text);
    }
    // Without an answer the measurement system is no number.
    case Border::Locale: return Error(RunTimeError::TypeMismatch);
    default: return fault.error();
    }
}

/// The way of a fault through an operation.
class Passage {
public:
    Passage(std::int32_t question, Operation operation, std::span<const Call> route, const Fault& fault)
        : question_(question), operation_(operation), route_(route), fault_(fault), isGone_(fault.isDeath()) {}

    [[nodiscard]] Prescription from(std::size_t position) {
        for (std::size_t i = position; i < route_.size();) {
            const Call& call = route_[i];
            if (!strikes(call, i == position)) {
                isGone_ = isGone_ && call.member != u"create";
                ++i;
                continue;
            }
            if (operation_.call == HostCall::TestePoint) {
                if (const std::u16string_view code = codeFor(call); !code.empty()) {
                    return {Answer::Code, std::nullopt, false, std::u16string(code)};
                }
            }
            if (const Rule* const rule = ruleFor(call, operation_)) {
                return prescriptionOf(*rule, call);
            }
            i = next(i);
        }
        return {};
    }

private:
    [[nodiscard]] bool strikes(const Call& call, bool isFirst) const {
        const bool isFaulty =
            !fault_.isDeath() && fault_.fits(call.border) && (isFirst || fault_.lasting == Fault::Lasting::FromThereOn);
        return isFaulty || (isGone_ && isLost(call));
    }

    /// A call that fails where PowerPoint is gone. One can be started then.
    [[nodiscard]] static bool isLost(const Call& call) {
        const bool isOfWindow =
            call.member == u"isVisible" || call.member == u"findWindow" || call.member == u"className";
        return isOfWindow || (call.border == Border::Automation && call.member != u"create");
    }

    /// The call from which the operation goes on where one has failed in silence.
    [[nodiscard]] std::size_t next(std::size_t i) {
        const Call& call = route_[i];
        const auto past = [&](std::initializer_list<Stage> stages) {
            const auto isIn = [&](const Call& each) {
                return std::find(stages.begin(), stages.end(), each.stage) != stages.end();
            };
            return static_cast<std::size_t>(
                std::find_if_not(route_.begin() + static_cast<std::ptrdiff_t>(i), route_.end(), isIn) - route_.begin());
        };
        if (call.stage == Stage::Obtaining && (call.member == u"isVisible" || call.member == u"className")) {
            isGone_ = false; // another PowerPoint is started
        }
        if (call.stage == Stage::Looking) {
            isGone_ = true; // it is quit where it is hidden
            return past({Stage::Looking, Stage::Closing, Stage::Asking, Stage::Cleaning, Stage::Returning});
        }
        if (call.stage == Stage::Asking) {
            return past({Stage::Asking, Stage::Cleaning, Stage::Returning});
        }
        const bool isWithoutWindow = call.stage == Stage::Fronting && call.member == u"findWindow";
        return isWithoutWindow || call.stage == Stage::LookingEnd ? route_.size() : i + 1;
    }

    [[nodiscard]] static std::u16string_view codeFor(const Call& call) {
        switch (call.stage) {
        case Stage::Looking: return u"AK";
        case Stage::Asking: return u"%AL";
        case Stage::Fronting: return call.member == u"findWindow" ? u"AM" : u"";
        default: return u"";
        }
    }

    [[nodiscard]] Prescription prescriptionOf(const Rule& rule, const Call& call) const {
        const bool isOfDeath = isGone_ && call.border == Border::Automation;
        if (rule.answer == Answer::Letter) {
            const bool isOfType = call.text.find(u".rtf") != std::u16string::npos;
            return {rule.answer, std::nullopt, false, isOfType ? u"B" : u"A"};
        }
        const Error failure = failureOf(call, fault_);
        if (rule.answer != Answer::Reported) {
            return {rule.answer, failure, isOfDeath};
        }
        std::u16string source = u"DLL K61027 - CLASSE ";
        source +=
            rule.className.empty() ? u"Question0" + automation::decimal(question_) : std::u16string(rule.className);
        source.append(u"\n\r - SERVICE ").append(rule.service).append(u" - OBJET ");
        if (!isOfDeath) {
            source += rule.object == Object::Source ? failure.source() : failure.description();
        }
        return {rule.answer, Error(failure.number(), source, failure.description()), isOfDeath};
    }

    std::int32_t question_;
    Operation operation_;
    std::span<const Call> route_;
    const Fault& fault_;
    bool isGone_;
};

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

bool Prescription::admits(const Error& raised) const {
    if (!error) {
        return false;
    }
    if (isOfDeath) {
        return automation::remote::isDead(raised.number()) &&
               (answer != Answer::Reported || raised.source().starts_with(error->source()));
    }
    return raised.number() == error->number() && raised.source() == error->source();
}

std::string Prescription::display() const {
    return std::string(nameOf(answer)) + (error ? ", " + inWords(*error) : "") +
           (code.empty() ? "" : ", " + automation::toUtf8(code));
}

Prescription prescriptionFor(std::int32_t question, Operation operation, std::span<const Call> route,
                             std::size_t position, const Fault& fault) {
    if (fault.isDelay()) {
        // Whether PowerPoint answers is asked once: it is refused, then, and the answer is no.
        const bool isRefused = fault.kind == Kind::Refuses && operation.call == HostCall::TestePoint &&
                               route[position].stage == Stage::Asking;
        return isRefused ? Prescription{Answer::Code, std::nullopt, false, u"%AL"} : Prescription{};
    }
    return Passage(question, operation, route, fault).from(position);
}

} // namespace trials::torture
