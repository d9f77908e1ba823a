#include "tests/trials/pairs/PairTrial.h"

#include "tests/trials/memory/Judge.h"

#include <algorithm>

namespace trials::pairs {

namespace {

using automation::Border;
using automation::Error;
using automation::RunTimeError;
using torture::Answer;
using torture::Assessment;
using torture::Fault;
using torture::Outcome;

constexpr auto registryError = static_cast<std::int32_t>(0x800403E8U);

bool isSame(const Outcome& left, const Outcome& right) {
    const bool isSameError = left.error.has_value() == right.error.has_value() &&
                             (!left.error || (left.error->number() == right.error->number() &&
                                              left.error->source() == right.error->source()));
    return isSameError && left.reading.has_value() == right.reading.has_value() &&
           (!left.reading || torture::isSameVerdict(*left.reading, *right.reading));
}

/// True for an error that a trouble leads to: its own, what the registry or the locale makes of it or a working file
/// that could not be removed, or that PowerPoint is gone.
bool mayRaise(const Trouble& trouble, const Error& error) {
    const bool isOfSystem = trouble.fault && trouble.fault->kind == Fault::Kind::AccessDenied;
    const bool isOfMemory = trouble.number() == Trouble().number() && error.is(RunTimeError::OutOfMemory);
    const bool isOfDeath = automation::remote::isDead(trouble.number()) && automation::remote::isDead(error.number());
    return error.number() == trouble.number() || isOfMemory || isOfDeath ||
           (isOfSystem && (error.number() == registryError || error.is(RunTimeError::TypeMismatch) ||
                           error.is(RunTimeError::FileAlreadyExists)));
}

Answer answerOf(const Outcome& outcome, const Outcome& flawless, const std::array<Trouble, 2>& troubles) {
    if (isSame(outcome, flawless)) {
        return Answer::Silence;
    }
    if (outcome.error) {
        const bool isKnown = std::any_of(troubles.begin(), troubles.end(),
                                         [&](const Trouble& each) { return mayRaise(each, *outcome.error); });
        const bool isReported = outcome.error->source().starts_with(u"DLL K61027");
        return !isKnown ? Answer::Wrong : isReported ? Answer::Reported : Answer::Straight;
    }
    if (!outcome.reading) {
        return Answer::Wrong;
    }
    const std::u16string& code = outcome.reading->causeErreur;
    if (outcome.reading->erreurGenerale) {
        return code == u"AK" || code == u"%AL" || code == u"AM" ? Answer::Code : Answer::Wrong;
    }
    // Question 304 finds no files.
    const bool isOfFiles = std::any_of(troubles.begin(), troubles.end(), [](const Trouble& each) {
        return each.fault && each.fault->fits(Border::File);
    });
    return isOfFiles && (code == u"A" || code == u"B") ? Answer::Letter : Answer::Wrong;
}

} // namespace

Assessment assess(const Aftermath& both, const Aftermath& alone, const Aftermath& flawless,
                  const std::array<Trouble, 2>& troubles, const torture::Operation& operation) {
    const Outcome& outcome = both.outcome;
    Assessment assessment{answerOf(outcome, flawless.outcome, troubles), outcome.findings};
    std::vector<std::string>& findings = assessment.findings;
    if (!outcome.isStruck) {
        findings.emplace_back("not both have struck");
    }
    const auto hidesPowerPoint = [](const Trouble& each) {
        return each.fault && (each.fault->isDeath() || each.fault->kind == Fault::Kind::AccessDenied);
    };
    // What the first alone has led to may be another's doing now, but is not passed over: unless it was a call to
    // PowerPoint that is not made where nobody sees one.
    const bool isForgotten = assessment.answer == Answer::Silence && !isSame(alone.outcome, flawless.outcome);
    if (isForgotten && !hidesPowerPoint(troubles.back())) {
        assessment.answer = Answer::Wrong;
    }
    const auto inWordsOf = [](const Outcome& each) {
        return (each.error ? inWords(*each.error) : "no error") + (each.reading ? ", " + each.reading->display() : "");
    };
    if (assessment.answer == Answer::Wrong) {
        findings.push_back("the host gets " + inWordsOf(outcome) + ", and with the first alone " +
                           inWordsOf(alone.outcome));
    }
    // A bar that could not be read before it was arranged cannot be put back.
    const std::size_t unread = operation.call == HostCall::InitQuestion ? troubles.size() : 0;
    if (outcome.bars.size() > unread) {
        findings.insert(findings.end(), outcome.bars.begin(), outcome.bars.end());
    }
    // One whose window cannot be seen is taken for one that nobody uses; it may fail on its way to its end.
    if (std::none_of(troubles.begin(), troubles.end(), hidesPowerPoint)) {
        findings.insert(findings.end(), outcome.presentations.begin(), outcome.presentations.end());
        if (outcome.powerPointEnded) {
            findings.emplace_back("the learner's PowerPoint has been ended");
        }
    }
    return assessment;
}

Aftermath PairTrial::meet(torture::Operation operation, std::vector<Trouble> troubles) const {
    Troubles met(std::move(troubles));
    const WorldMaker makeWorld = [&](const automation::ObserverPtr& observer) {
        return met.meetIn(makeWorld_(observer));
    };
    Outcome outcome = torture::Run(file_, course_, makeWorld).run(operation, met, false);
    return {std::move(outcome), met.struck(), met.ended(), met.borders()};
}

std::size_t PairTrial::between(std::size_t least, std::size_t most) const {
    return least + random_() % (most - least + 1);
}

std::vector<Trouble> PairTrial::firsts(const Aftermath& flawless, std::size_t n) const {
    std::vector<Trouble> all;
    for (const Fault& fault : Fault::all()) {
        if (fault.fits(flawless.borders[n - 1])) {
            all.push_back({fault, fault.lasting == Fault::Lasting::FromThereOn, n});
        }
    }
    for (const bool lasts : {false, true}) {
        all.push_back({std::nullopt, lasts, between(1, flawless.ended.asked)});
    }
    return all;
}

std::optional<Trouble> PairTrial::second(const Trouble& first, const Aftermath& alone) const {
    std::vector<Trouble> all;
    if (alone.ended.calls > alone.struck.calls) {
        const std::size_t n = between(alone.struck.calls + 1, alone.ended.calls);
        for (const Fault& fault : Fault::all()) {
            const Trouble trouble{fault, fault.lasting == Fault::Lasting::FromThereOn, n};
            if (fault.fits(alone.borders[n - 1]) && !trouble.isLike(first)) {
                all.push_back(trouble);
            }
        }
    }
    if (first.fault && alone.ended.asked > alone.struck.asked) {
        for (const bool lasts : {false, true}) {
            all.push_back({std::nullopt, lasts, between(alone.struck.asked + 1, alone.ended.asked)});
        }
    }
    return all.empty() ? std::nullopt : std::optional(all[random_() % all.size()]);
}

void PairTrial::run(const torture::Audience& audience) const {
    for (const torture::Operation& operation : torture::operations) {
        const Aftermath flawless = meet(operation, {});
        const std::size_t calls = flawless.borders.size();
        for (std::size_t n = 1 + random_() % every_; n <= calls; n += every_) {
            audience.hasComeTo(operation.display(), n, calls);
            for (const Trouble& first : firsts(flawless, n)) {
                const Aftermath alone = meet(operation, {first});
                const std::optional<Trouble> then = second(first, alone);
                if (!then) {
                    continue;
                }
                const std::string what = operation.display() + ", " + first.display() + ", then " + then->display();
                memory::judge(audience, what, [&] {
                    const Aftermath both = meet(operation, {first, *then});
                    // What was allocated once and kept is not asked for again.
                    const bool isReached = both.outcome.isStruck || (first.fault && then->fault);
                    return isReached ? std::optional(assess(both, alone, flawless, {first, *then}, operation))
                                     : std::nullopt;
                });
            }
        }
    }
}

} // namespace trials::pairs
