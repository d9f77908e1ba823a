#include "host/try/Attempt.h"

#include "automation/LateBound.h"
#include "host/language/Parser.h"
#include "host/try/SavedScenario.h"

namespace host {

namespace {

using language::Check;
using language::Statement;

bool isCheck(const Statement& statement) {
    return std::holds_alternative<Check>(statement.node);
}

} // namespace

Attempt::Attempt(std::int32_t question, const Course& course, const WorldMaker& makeWorld)
    : world_(makeWorld(nullptr)), guard_(*world_), exercise_(*world_, course, question, guard_) {
    exercise_.begin();
}

void Attempt::perform(Statement move) {
    exercise_.execute(move);
    moves_.push_back(std::move(move));
}

Reading Attempt::check() {
    Reading reading = exercise_.check();
    moves_.push_back(language::parseStatement(checkOf(reading)));
    return reading;
}

std::size_t Attempt::checks() const {
    return static_cast<std::size_t>(std::count_if(moves_.begin(), moves_.end(), isCheck));
}

std::vector<Statement> Attempt::takeMoves() {
    std::vector<Statement> taken = std::exchange(moves_, {});
    std::erase_if(taken, isCheck);
    return taken;
}

Bytes Attempt::presentation() {
    const std::u16string copy = world_->hostFolder() + u"exercise-host copy.ppt";
    const automation::LateBound application(world_->application());
    const automation::LateBound active(application.get(u"ActivePresentation").to<automation::ObjectPtr>());
    active.call(u"SaveCopyAs", copy);
    Bytes content = world_->readFile(copy);
    world_->deleteFile(copy);
    return content;
}

std::vector<std::string> Attempt::close() {
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
