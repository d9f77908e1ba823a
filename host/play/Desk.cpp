#include "host/play/Desk.h"

#include "automation/Text.h"
#include "host/language/Parser.h"
#include "host/language/Writer.h"
#include "host/play/Screen.h"
#include "host/play/Verdicts.h"
#include "host/try/Immediate.h"
#include "host/try/ScenarioAdding.h"
#include "host/try/Trouble.h"
#include "host/world/OutputFile.h"
#include "host/world/RealFile.h"

#include <numeric>

namespace host {

namespace {

using automation::fromUtf8;
using automation::toUtf8;
using language::Statement;

/// Does something with statements, and says in words what is wrong with them.
template <typename Work> auto inWordsOf(const Work& work) {
    try {
        return work();
    } catch (const language::SyntaxError& error) {
        throw std::runtime_error(explained(error));
    } catch (const language::Failure& failure) {
        throw std::runtime_error(explained(failure));
    }
}

/// A page waits no longer for a statement.
constexpr std::chrono::seconds patience{5};

/// A scenario file in the folder that the program was started in: a page names no others.
std::filesystem::path ownFile(const std::string& name) {
    std::filesystem::path path = pathOf(name);
    if (name.find_first_of("/\\:") != std::string::npos || path.extension() != ".scn") {
        throw std::runtime_error("Name a file of the folder that exercise-host was started in, as mine.scn");
    }
    return path;
}

} // namespace

Desk::Desk(PlayedQuestion question, QuestionFinder find, WorldMaker makeWorld)
    : question_(std::move(question)), find_(std::move(find)), makeWorld_(std::move(makeWorld)) {
    prepare();
}

void Desk::prepare() {
    static_cast<void>(close()); // what is amiss is of gestures that are taken back
    open_.emplace(question_.file, question_.course, makeWorld_);
    open_->limit(patience);
    gestures_.clear();
    verdict_ = nullptr;
}

OpenQuestion& Desk::prepared() {
    if (!open_) {
        throw std::runtime_error("The question could not be prepared: begin it anew");
    }
    return *open_;
}

void Desk::make(Statement statement) {
    if (std::holds_alternative<language::Check>(statement.node)) {
        throw std::runtime_error("A gesture cannot check: the verdict has a button of its own");
    }
    verdict_ = nullptr;
    try {
        prepared().perform(std::move(statement));
    } catch (const language::Failure&) {
        replay(gestures_.size()); // what it has done before it fell short is of no statement
        throw;
    }
}

void Desk::perform(const std::vector<std::string>& statements) {
    inWordsOf([&] {
        std::vector<Statement> gesture;
        gesture.reserve(statements.size());
        for (const std::string& statement : statements) {
            gesture.push_back(language::parseStatement(fromUtf8(statement)));
        }
        std::size_t made = 0;
        for (Statement& statement : gesture) {
            make(std::move(statement));
            gestures_.resize(gestures_.size() + (made == 0 ? 1 : 0));
            gestures_.back() = ++made;
        }
    });
}

std::string Desk::say(const std::string& line) {
    if (line.starts_with('?')) {
        const std::u16string expression = fromUtf8(" " + line.substr(1)); // columns count in the line
        return inWordsOf([&] { return printed(prepared().evaluate(language::parseExpression(expression))); });
    }
    perform({line});
    return {};
}

void Desk::replay(std::size_t gestures) {
    const std::vector<std::size_t> kept(gestures_.begin(), gestures_.begin() + static_cast<std::ptrdiff_t>(gestures));
    std::vector<Statement> moves = prepared().takeMoves();
    moves.resize(std::accumulate(kept.begin(), kept.end(), std::size_t(0)));
    prepare();
    for (Statement& move : moves) {
        prepared().perform(std::move(move));
    }
    gestures_ = kept;
}

void Desk::check() {
    if (prepared().checks() != 0) {
        replay(gestures_.size()); // a second check of one preparation is a general error
    }
    verdict_ = verdictOf(prepared().check());
}

void Desk::undo() {
    if (gestures_.empty()) {
        throw std::runtime_error("There is nothing to take back");
    }
    inWordsOf([&] { replay(gestures_.size() - 1); });
}

void Desk::reset() {
    prepare();
}

std::string Desk::save(const std::string& name, const std::string& title) {
    if (verdict_ == nullptr) {
        throw std::runtime_error("Ask for the verdict first: a scenario says what the host must read");
    }
    if (title.empty()) {
        throw std::runtime_error("Say in the title what the learner does");
    }
    const std::filesystem::path path = ownFile(name);
    if (std::filesystem::exists(path)) {
        addScenario(name, question_.file, fromUtf8(title), prepared().statements());
    } else {
        OutputFile(name, std::nullopt)
            .write(language::scenarioText(question_.file, fromUtf8(title), prepared().statements()));
    }
    return "\"" + title + "\" is in " + std::filesystem::absolute(path).string();
}

void Desk::open(std::int32_t question) {
    PlayedQuestion next = find_(question);
    static_cast<void>(close());
    question_ = std::move(next);
    prepare();
}

nlohmann::json Desk::state() {
    const language::ScenarioFile& file = question_.file;
    nlohmann::json state{
        {"question", {{"number", file.question}, {"task", toUtf8(file.contract.task)}, {"next", question_.next}}},
        {"statements", nlohmann::json::array()},
        {"verdict", verdict_},
        {"screen", {{"running", false}, {"slides", nlohmann::json::array()}}}};
    if (open_) {
        for (const std::u16string& statement : open_->statements()) {
            state["statements"].push_back(toUtf8(statement));
        }
        state["screen"] = screenOf(open_->world());
    }
    return state;
}

std::vector<std::string> Desk::close() {
    std::vector<std::string> findings;
    if (open_) {
        findings = open_->close();
        open_.reset();
    }
    return findings;
}

} // namespace host
