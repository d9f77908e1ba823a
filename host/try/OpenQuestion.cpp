#include "host/try/OpenQuestion.h"

#include "automation/LateBound.h"
#include "host/language/Parser.h"
#include "host/language/Writer.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace host {

using language::Statement;

OpenQuestion::OpenQuestion(const language::ScenarioFile& file, const Course& course, const WorldMaker& makeWorld)
    : explainer_(file.contract), world_(makeWorld(explainer_.observer())), guard_(*world_),
      exercise_(*world_, course, file.question, witnesses_) {
    witnesses_.add(guard_);
    witnesses_.add(explainer_);
    exercise_.begin();
}

void OpenQuestion::perform(Statement move) {
    exercise_.execute(move);
    steps_.push_back({std::move(move), true});
}

Reading OpenQuestion::check() {
    Reading reading = exercise_.check();
    for (const std::u16string& line : language::checkOf(reading)) {
        remember(language::parseStatement(line));
    }
    ++checks_;
    return reading;
}

void OpenQuestion::remember(Statement expectation) {
    if (!std::holds_alternative<language::Check>(expectation.node)) {
        try {
            exercise_.execute(expectation);
        } catch (const language::Failure&) {
            return; // where there is no question any more, nothing can be read of it
        }
    }
    steps_.push_back({std::move(expectation), false});
}

const std::u16string& OpenQuestion::lastMove() const {
    return std::find_if(steps_.rbegin(), steps_.rend(), std::mem_fn(&Step::isMove))->statement.text;
}

std::size_t OpenQuestion::moves() const {
    return static_cast<std::size_t>(std::count_if(steps_.begin(), steps_.end(), std::mem_fn(&Step::isMove)));
}

bool OpenQuestion::expectsSomething() const {
    return std::any_of(steps_.begin(), steps_.end(),
                       [](const Step& step) { return language::expectsSomething(step.statement); });
}

std::vector<std::u16string> OpenQuestion::statements() const {
    std::vector<std::u16string> all;
    for (const Step& step : steps_) {
        all.push_back(step.statement.text);
    }
    return all;
}

std::vector<Statement> OpenQuestion::takeMoves() {
    std::vector<Statement> taken;
    checks_ = 0;
    for (Step& step : std::exchange(steps_, {})) {
        if (step.isMove) {
            taken.push_back(std::move(step.statement));
        }
    }
    return taken;
}

std::vector<Statement> OpenQuestion::takeAllBeforeLastMove() {
    std::vector<Statement> taken;
    std::size_t left = moves();
    checks_ = 0;
    for (Step& step : std::exchange(steps_, {})) {
        left -= step.isMove ? 1 : 0;
        // What a check expects beside its verdict comes again with it.
        if (left != 0 && (step.isMove || std::holds_alternative<language::Check>(step.statement.node))) {
            taken.push_back(std::move(step.statement));
        }
    }
    return taken;
}

Bytes OpenQuestion::presentation() {
    const std::u16string copy = world_->hostFolder() + u"exercise-host copy.ppt";
    const automation::LateBound application(world_->powerPoint().application());
    const automation::LateBound active(application.get(u"ActivePresentation").to<automation::ObjectPtr>());
    active.call(u"SaveCopyAs", copy);
    Bytes content = world_->files().read(copy);
    world_->files().remove(copy);
    return content;
}

std::vector<std::string> OpenQuestion::close() {
    std::vector<std::string> findings;
    try {
        exercise_.finish();
    } catch (const automation::Error& error) {
        findings.push_back(inWords(error));
    }
    for (const std::vector<std::string>& found : {guard_.findings(), world_->leftOpen()}) {
        findings.insert(findings.end(), found.begin(), found.end());
    }
    return findings;
}

} // namespace host
