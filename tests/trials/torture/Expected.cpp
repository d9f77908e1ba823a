#include "tests/trials/torture/Expected.h"

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
enum class Object : std::uint8_t { Description, Source };

/// What becomes of a failed call of a phase; what no rule names is passed over.
struct Rule {
    Phase phase;
    Border border;
    std::u16string_view member; ///< any where it is empty
    Answer answer;
    std::u16string_view className = {}; ///< that of the question where it is empty
    std::u16string_view service = {};
    Object object = Object::Description;
};

constexpr std::array rules{
    Rule{Phase::Obtaining, Border::Automation, u"attach", Answer::Silence},
    Rule{Phase::Obtaining, Border::Automation, u"ShowStartupDialog", Answer::Silence},
    Rule{Phase::Obtaining, Border::Automation, {}, Answer::Reported, u"Module", u"GetApplication"},
    Rule{Phase::Saving, Border::Automation, {}, Answer::Reported, u"Module", u"RestaureParamUser"},
    Rule{Phase::Saving, Border::Registry, u"open", Answer::Reported, u"Module", u"RestaureParamUser"},
    Rule{Phase::Saving, Border::Registry, u"query", Answer::Reported, u"Module", u"RestaureParamUser"},
    Rule{Phase::Cleaning, Border::Automation, {}, Answer::Reported, u"Module", u"Nettoyage"},
    Rule{Phase::Restoring, Border::Registry, u"open", Answer::Reported, u"Module", u"RestaureParamUser"},
    Rule{Phase::Creating, Border::Registry, u"open", Answer::Reported, u"Module", u"InitQuestion"},
    Rule{Phase::Creating, Border::Registry, u"query", Answer::Reported, u"Module", u"InitQuestion"},
    Rule{Phase::Staging, Border::File, {}, Answer::Reported, u"Module", u"Renomme"},
    Rule{Phase::Tooltips, Border::Automation, {}, Answer::Straight},
    Rule{Phase::Preparing, Border::Automation, {}, Answer::Reported, {}, u"Prepare", Object::Source},
    Rule{Phase::Preparing, Border::Locale, {}, Answer::Reported, {}, u"Prepare", Object::Source},
    Rule{Phase::Pointing, Border::Registry, u"open", Answer::Reported, u"Module", u"ChangeDir"},
    Rule{Phase::Fronting, Border::Automation, {}, Answer::Straight},
    Rule{Phase::Examining, Border::Automation, {}, Answer::Straight},
    Rule{Phase::Checking, Border::Automation, {}, Answer::Reported, {}, u"TestePoint", Object::Source},
    Rule{Phase::Checking, Border::File, {}, Answer::Letter}, // question 304 finds no files
    Rule{Phase::Ending, Border::Automation, {}, Answer::Straight},
};

const Rule* ruleFor(const Call& call, Operation operation) {
    if (operation.isHeld && call.phase == Phase::Saving && call.member == u"query") {
        return nullptr; // the learner's folders have been kept since the question held was begun
    }
    for (const Rule& each : rules) {
        if (each.phase == call.phase && each.border == call.border &&
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
class FaultPath {
public:
    FaultPath(std::int32_t question, Operation operation, std::span<const Call> route, const Fault& fault)
        : question_(question), operation_(operation), route_(route), fault_(fault), isGone_(fault.isDeath()) {}

    [[nodiscard]] Expected from(std::size_t position) {
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
                return expectedOf(*rule, call);
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
        const auto past = [&](std::initializer_list<Phase> phases) {
            const auto isIn = [&](const Call& each) {
                return std::find(phases.begin(), phases.end(), each.phase) != phases.end();
            };
            return static_cast<std::size_t>(
                std::find_if_not(route_.begin() + static_cast<std::ptrdiff_t>(i), route_.end(), isIn) - route_.begin());
        };
        if (call.phase == Phase::Obtaining && (call.member == u"isVisible" || call.member == u"className")) {
            isGone_ = false; // another PowerPoint is started
        }
        if (call.phase == Phase::Looking) {
            isGone_ = true; // it is quit where it is hidden
            return past(
                {Phase::Looking, Phase::Closing, Phase::Hanging, Phase::Asking, Phase::Cleaning, Phase::Returning});
        }
        if (call.phase == Phase::Asking) {
            return past({Phase::Asking, Phase::Cleaning, Phase::Returning});
        }
        const bool isWithoutWindow = call.phase == Phase::Fronting && call.member == u"findWindow";
        return isWithoutWindow || call.phase == Phase::LookingEnd ? route_.size() : i + 1;
    }

    [[nodiscard]] static std::u16string_view codeFor(const Call& call) {
        switch (call.phase) {
        case Phase::Looking: return u"AK";
        case Phase::Asking: return u"%AL";
        case Phase::Fronting: return call.member == u"findWindow" ? u"AM" : u"";
        default: return u"";
        }
    }

    [[nodiscard]] Expected expectedOf(const Rule& rule, const Call& call) const {
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
    case Answer::Straight: return "raised straight";
    case Answer::Code: return "general code";
    case Answer::Letter: return "letter";
    case Answer::Silence: return "passed over";
    case Answer::Wrong: return "wrong";
    }
    return "";
}

bool Expected::admits(const Error& raised) const {
    if (!error) {
        return false;
    }
    if (isOfDeath) {
        return automation::remote::isDead(raised.number()) &&
               (answer != Answer::Reported || raised.source().starts_with(error->source()));
    }
    return raised.number() == error->number() && raised.source() == error->source();
}

std::string Expected::display() const {
    return std::string(nameOf(answer)) + (error ? ", " + inWords(*error) : "") +
           (code.empty() ? "" : ", " + automation::toUtf8(code));
}

Expected expectedFor(std::int32_t question, Operation operation, std::span<const Call> route, std::size_t position,
                     const Fault& fault) {
    if (fault.isDelay()) {
        // Whether PowerPoint answers is asked once: it is refused, then, and the answer is no.
        const bool isRefused = fault.kind == Kind::Refuses && operation.call == HostCall::TestePoint &&
                               route[position].phase == Phase::Asking;
        return isRefused ? Expected{Answer::Code, std::nullopt, false, u"%AL"} : Expected{};
    }
    return FaultPath(question, operation, route, fault).from(position);
}

} // namespace trials::torture
