#include "tests/trials/memory/MemoryTrial.h"

#include "tests/trials/memory/FileTrial.h"
#include "tests/trials/memory/Judge.h"
#include "tests/trials/memory/ScarceWorld.h"

namespace trials::memory {

namespace {

using automation::RunTimeError;
using torture::Answer;
using torture::Assessment;
using torture::Outcome;
using Lasting = ScarceMemory::Lasting;

/// How the host came to know of it.
Answer answerOf(const Outcome& outcome, const Outcome& flawless) {
    if (outcome.error && outcome.error->is(RunTimeError::OutOfMemory)) {
        return outcome.error->source().starts_with(u"DLL K61027") ? Answer::Reported : Answer::Straight;
    }
    if (outcome.reading && outcome.reading->erreurGenerale) {
        const std::u16string& code = outcome.reading->causeErreur;
        return code == u"AK" || code == u"%AL" || code == u"AM" ? Answer::Code : Answer::Wrong;
    }
    const bool isAsEver =
        outcome.reading ? torture::isSameVerdict(*outcome.reading, *flawless.reading) : !outcome.error;
    return isAsEver ? Answer::Silence : Answer::Wrong;
}

Assessment assess(const Outcome& outcome, const Outcome& flawless, HostCall call) {
    Assessment assessment{answerOf(outcome, flawless), outcome.findings};
    std::vector<std::string>& findings = assessment.findings;
    findings.insert(findings.end(), outcome.presentations.begin(), outcome.presentations.end());
    if (assessment.answer == Answer::Wrong) {
        findings.push_back("the host gets" + (outcome.error ? " " + inWords(*outcome.error) : " no error") +
                           (outcome.reading ? ", " + outcome.reading->display() : ""));
    }
    // A bar that could not be read before it was arranged cannot be put back.
    if (call != HostCall::InitQuestion || outcome.bars.size() > 1) {
        findings.insert(findings.end(), outcome.bars.begin(), outcome.bars.end());
    }
    if (outcome.powerPointEnded) {
        findings.emplace_back("the learner's PowerPoint has been ended");
    }
    return assessment;
}

} // namespace

void MemoryTrial::run(const torture::Audience& audience) const {
    for (const torture::Operation& operation : torture::operations) {
        std::optional<Outcome> flawless;
        std::size_t before = 0; ///< allocations until the module's first call, those of the host among them
        const Struck struck = [&](std::size_t position, Lasting lasting) {
            Scarcity scarcity(position, lasting);
            const WorldMaker makeScarce = [&](const automation::ObserverPtr& observer) {
                return makeScarceWorld(makeWorld_(observer), scarcity);
            };
            // Where memory lasts out to the end, a module that has been left has left nothing.
            const bool isLeft = lasting == Lasting::Once && position > before;
            const Outcome outcome = torture::Run(file_, course_, makeScarce).run(operation, scarcity, isLeft);
            if (!flawless) {
                flawless = outcome;
                before = scarcity.askedBefore();
            }
            return Result{assess(outcome, *flawless, operation.call), outcome.calls};
        };
        run(operation.display(), struck, audience);
    }
    for (const FileOperation& operation : fileOperations) {
        std::optional<FileOutcome> flawless;
        const Struck struck = [&](std::size_t position, Lasting lasting) {
            const WorldPtr world = makeWorld_(nullptr);
            const std::u16string name = course_.deliver(*world, file_.question).front();
            const FileOutcome outcome = tryFile(*world, name, operation, position, lasting);
            if (!flawless) {
                flawless = outcome;
            }
            const Answer answer = outcome.error ? Answer::Straight : Answer::Silence;
            return Result{{answer, findingsIn(outcome, *flawless)}, outcome.asked};
        };
        run(std::string(operation.name), struck, audience);
    }
}

void MemoryTrial::run(const std::string& operation, const Struck& struck, const torture::Audience& audience) const {
    const Result flawless = struck(0, Lasting::Once);
    audience.tell(operation + ", nothing failed", flawless.assessment.findings);
    for (std::size_t n = 1 + random_() % every_; n <= flawless.asked; n += every_) {
        audience.hasComeTo(operation, n, flawless.asked);
        for (const Lasting lasting : {Lasting::Once, Lasting::FromThereOn}) {
            const std::string what =
                operation + ", allocation " + std::to_string(n) + (lasting == Lasting::Once ? "" : " from there on");
            judge(audience, what, [&] { return std::optional(struck(n, lasting).assessment); });
        }
    }
}

} // namespace trials::memory
