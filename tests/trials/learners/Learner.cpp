#include "tests/trials/learners/Learner.h"

#include "automation/Text.h"
#include "tests/trials/learners/Gestures.h"

#include <regex>

namespace trials::learners {

namespace {

/// What the host does of itself is none of a learner's moves.
bool isOfLearner(const language::Statement& statement) {
    const bool isMove = std::holds_alternative<language::Call>(statement.node) ||
                        std::holds_alternative<language::Assignment>(statement.node);
    return isMove && !statement.text.starts_with(u"Host.");
}

} // namespace

Learner::Learner(const language::ScenarioFile& file, const Course& course, Draw& draw)
    : question_(file.question), course_(course), draw_(draw) {
    static const std::regex shapesOfSlide(R"(\((\d)\)\.Shapes)");
    for (const language::Scenario& scenario : file.scenarios) {
        Moves moves;
        for (const language::Statement& statement : scenario.statements) {
            if (std::holds_alternative<language::Check>(statement.node) && !scenario.startsBeforeInitQuestion) {
                ways_.push_back(moves);
            } else if (isOfLearner(statement)) {
                moves.push_back(statement.text);
                const std::string text = automation::toUtf8(statement.text);
                if (std::smatch slide; std::regex_search(text, slide, shapesOfSlide)) {
                    slides_.push_back(static_cast<std::size_t>(std::stoi(slide[1])));
                }
            }
        }
    }
    slides_.push_back(1);
}

Record Learner::work() const {
    Trial trial(question_, course_);
    Record record;
    for (std::size_t checks = draw_.percent(75) ? 1 : draw_.between(2, 3); checks != 0; --checks) {
        workOn(trial, record.moves);
        record.moves.emplace_back(checkMove);
        record.findings.push_back(trial.check());
        if (!record.isAgreed()) {
            return record;
        }
        if (draw_.percent(60) && checks != 1) {
            while (trial.scene().hasDialog()) {
                perform(u"PowerPoint.CloseDialog", trial, record.moves);
            }
            perform(u"Host.InitQuestion", trial, record.moves);
        }
    }
    trial.finish();
    return record;
}

void Learner::workOn(Trial& trial, Moves& moves) const {
    if (draw_.percent(75)) {
        followScenarios(trial, moves);
    } else {
        for (std::size_t left = draw_.between(1, 5); left != 0; --left) {
            doAnything(trial, moves);
        }
    }
}

void Learner::followScenarios(Trial& trial, Moves& moves) const {
    Moves way = draw_.of(ways_);
    if (draw_.percent(20)) {
        const Moves& other = draw_.of(ways_);
        way.resize(draw_.below(way.size() + 1));
        way.insert(way.end(), other.begin(), other.end());
    }
    if (draw_.percent(10)) {
        for (std::u16string& move : way) {
            std::swap(move, way[draw_.below(way.size())]);
        }
    }
    const std::size_t slips = draw_.percent(60) ? 0 : 8;
    for (const std::u16string& move : way) {
        if (draw_.percent(slips)) {
            doAnything(trial, moves);
        }
        if (!draw_.percent(slips)) {
            perform(move, trial, moves);
        }
    }
    if (draw_.percent(15)) {
        doAnything(trial, moves);
    }
}

void Learner::doAnything(Trial& trial, Moves& moves) const {
    const Scene scene = trial.scene();
    const std::size_t slide = draw_.percent(90) ? draw_.of(slides_) : draw_.between(1, 5);
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
