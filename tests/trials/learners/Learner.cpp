#include "tests/trials/learners/Learner.h"

#include "tests/trials/learners/Gestures.h"

namespace trials::learners {

Attempt Learner::work() const {
    Trial trial(lesson_.question, course_);
    Attempt attempt;
    for (std::size_t checks = draw_.percent(75) ? 1 : draw_.between(2, 3); checks != 0; --checks) {
        workOn(trial, attempt.moves);
        attempt.moves.emplace_back(checkMove);
        attempt.findings.push_back(trial.check());
        if (!attempt.isAgreed()) {
            return attempt;
        }
        if (draw_.percent(60) && checks != 1) {
            perform(u"Host.InitQuestion", trial, attempt.moves);
        }
    }
    trial.finish();
    return attempt;
}

void Learner::workOn(Trial& trial, Moves& moves) const {
    if (draw_.percent(75)) {
        followLesson(trial, moves);
    } else {
        for (std::size_t left = draw_.between(1, 5); left != 0; --left) {
            doAnything(trial, moves);
        }
    }
}

void Learner::followLesson(Trial& trial, Moves& moves) const {
    const bool isStubborn = draw_.percent(20); // the same way in every step
    const std::size_t way = draw_.below(8);
    for (const Step& step : lesson_.steps) {
        if (draw_.percent(8)) {
            doAnything(trial, moves);
        }
        if (!draw_.percent(8)) {
            perform(isStubborn          ? step[way % step.size()]
                    : draw_.percent(65) ? step.front()
                                        : draw_.of(step),
                    trial, moves);
        }
    }
    if (draw_.percent(15)) {
        doAnything(trial, moves);
    }
}

void Learner::doAnything(Trial& trial, Moves& moves) const {
    const Scene scene = trial.scene();
    const std::size_t slide = draw_.percent(90) ? lesson_.slide : draw_.between(1, 5);
    perform(anyGesture({scene, draw_, slide}), trial, moves);
}

void Learner::perform(const std::u16string& gesture, Trial& trial, Moves& moves) {
    for (std::size_t start = 0; start < gesture.size();) {
        const std::size_t end = std::min(gesture.find(u'\n', start), gesture.size());
        std::u16string statement = gesture.substr(start, end - start);
        if (!trial.perform(statement)) {
            return;
        }
        moves.push_back(std::move(statement));
        start = end + 1;
    }
}

} // namespace trials::learners
