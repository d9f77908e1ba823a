#include "tests/trials/days/DayTrial.h"

#include "host/language/Parser.h"
#include "host/run/Witnesses.h"
#include "host/run/WorldStage.h"
#include "tests/trials/cost/ProcessUse.h"
#include "tests/trials/torture/ErrorOf.h"
#include "tests/trials/torture/LearnerState.h"

namespace trials::days {

namespace {

using automation::Error;
using torture::errorOf;
using torture::LearnerState;

/// A host that makes the best of whatever is raised, and the learner before it.
class Course {
public:
    Course(World& world, Mischief& mischief, Totals& totals, std::vector<std::string>& findings)
        : world_(world), mischief_(mischief), totals_(totals), findings_(findings), guard_(world) {
        witnesses_.add(guard_);
        witnesses_.add(mischief);
    }

    void perform(const Attempt& attempt) {
        ++totals_.attempts;
        mischief_.begin(world_, attempt.troubles);
        TrainingHost host(world_, attempt.lesson->course, attempt.lesson->file.question, witnesses_);
        arrive(host, attempt.arrival);
        if (begin(host)) {
            WorldStage stage(world_, &host);
            language::Interpreter interpreter(stage);
            for (const std::u16string& move : attempt.moves) {
                make(move, host, interpreter);
            }
        }
        depart(host, attempt.departure);
        application_ = std::move(host.application);
        window_ = host.window;
    }

    /// All is well again: the host closes what is open, and so do the questions that make files of their own.
    void settle(const Day& day) {
        while (world_.powerPoint().dialogs() != 0) {
            world_.powerPoint().closeDialog();
        }
        for (const Attempt& each : day) {
            const std::int32_t question = each.lesson->file.question;
            if (question == 304 || question == 305 || &each == &day.back()) {
                perform({each.lesson, Attempt::Arrival::Kept, {}, Attempt::Departure::FermerAndQuitter, {}});
            }
        }
        for (const std::string& finding : guard_.findings()) {
            findings_.push_back(finding);
        }
        application_ = nullptr;
    }

private:
    void arrive(TrainingHost& host, Attempt::Arrival arrival) {
        if (arrival == Attempt::Arrival::OfLearner) {
            static_cast<void>(errorOf([&] { world_.powerPoint().start(); }));
            host.application = world_.powerPoint().application();
            host.window = world_.powerPoint().window();
        } else if (arrival == Attempt::Arrival::Kept) {
            host.application = application_;
            host.window = window_;
        }
    }

    /// A host calls InitQuestion again where it is refused. Once nothing makes it fail any more it is refused once at
    /// most, for a dialog that the learner has left open.
    bool begin(TrainingHost& host) {
        std::optional<Error> error;
        for (int tries = 4; tries != 0; --tries) {
            if (tries == 2) {
                mischief_.begin(world_, {});
            }
            error = errorOf([&] { host.initQuestion(host.question(), world_.hostFolder()); });
            if (!error) {
                return true;
            }
        }
        findings_.push_back("InitQuestion of " + std::to_string(host.question()) + " goes on raising " +
                            inWords(*error));
        return false;
    }

    void make(const std::u16string& move, TrainingHost& host, language::Interpreter& interpreter) {
        if (move == learners::checkMove) {
            ++totals_.checks;
            static_cast<void>(host.check());
            return;
        }
        try {
            interpreter.execute(language::parseStatement(move));
        } catch (const language::Failure&) {
            // PowerPoint is another than where the move was thought of, or gone.
        }
    }

    /// A host goes on whatever the end of a question raises.
    static void depart(TrainingHost& host, Attempt::Departure departure) {
        if (departure == Attempt::Departure::Fermer || departure == Attempt::Departure::FermerAndQuitter) {
            static_cast<void>(errorOf([&] { host.fermer(); }));
        }
        if (departure == Attempt::Departure::Quitter || departure == Attempt::Departure::FermerAndQuitter) {
            static_cast<void>(errorOf([&] { host.quitter(); }));
        }
    }

    World& world_;
    Mischief& mischief_;
    Totals& totals_;
    std::vector<std::string>& findings_;
    Guard guard_;
    Witnesses witnesses_;
    automation::ObjectPtr application_; ///< kept by the host from one question to the next
    std::int32_t window_ = TrainingHost::unknownWindow;
};

} // namespace

std::vector<std::string> DayTrial::live(const Day& day, Totals& totals) const {
    std::vector<std::string> findings;
    const std::size_t objects = automation::Object::alive();
    const std::optional<std::size_t> handles = cost::processUse().handles;
    {
        Mischief mischief(isRemote_);
        const WorldPtr world =
            makeWorld_(isRemote_ ? nullptr : automation::ObserverPtr(automation::ObserverPtr(), &mischief));
        if (isRemote_) {
            world->powerPoint().start(); // how its bars are arranged goes with its process
        } else {
            torture::settleIn(*world);
        }
        const LearnerState before(*world);
        {
            Course course(*world, mischief, totals, findings);
            for (const Attempt& each : day) {
                onAttempt_(each.display());
                course.perform(each);
            }
            course.settle(day);
        }
        totals.struck += mischief.struck();
        world->powerPoint().start();
        const LearnerState after(*world);
        if (after.folders != before.folders) {
            findings.emplace_back("the learner's folders are not as they were");
        }
        const std::vector<std::string> bars = barsChanged(before, after);
        if (bars.size() > mischief.barsUnread()) {
            findings.insert(findings.end(), bars.begin(), bars.end());
        }
        for (const std::string& open : world->leftOpen()) {
            findings.push_back(open);
        }
    }
    if (automation::Object::alive() != objects) {
        findings.push_back(std::to_string(automation::Object::alive() - objects) + " automation objects left alive");
    }
    if (!isRemote_ && cost::processUse().handles != handles) {
        findings.emplace_back("handles are left open");
    }
    return findings;
}

} // namespace trials::days
