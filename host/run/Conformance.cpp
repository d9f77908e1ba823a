#include "host/run/Conformance.h"

#include "host/run/WorldStage.h"
#include "host/world/Members.h"

namespace host {

namespace {

using language::Failure;
using language::Statement;

/// Performs statements up to the first move that raises, and finds out what they expect.
class Inquiry {
public:
    explicit Inquiry(World& world) : stage_(world), interpreter_(stage_) {}

    void perform(const std::vector<Statement>& statements) {
        for (const Statement& statement : statements) {
            if (language::expectsSomething(statement)) {
                findings_.push_back(find(statement));
            } else if (obstacle_.empty()) {
                move(statement);
            }
        }
    }
    [[nodiscard]] std::vector<Finding> findings() {
        interpreter_.forget();
        return std::move(findings_);
    }

private:
    void move(const Statement& statement) {
        try {
            interpreter_.execute(statement);
        } catch (const Failure& failure) {
            obstacle_ = "line " + std::to_string(statement.place.line) + " raises " + failure.remark.message;
            findings_.push_back({Kept::CannotTell, {statement.place, obstacle_}}); // nothing may be expected behind it
        }
    }

    Finding find(const Statement& expectation) {
        if (!obstacle_.empty()) {
            return {Kept::CannotTell, {expectation.place, obstacle_}};
        }
        try {
            interpreter_.execute(expectation);
        } catch (const Failure& failure) {
            return {Kept::Differs, failure.remark};
        }
        return {Kept::Agrees, {expectation.place, {}}};
    }

    WorldStage stage_;
    language::Interpreter interpreter_;
    std::vector<Finding> findings_;
    std::string obstacle_; ///< why nothing more can be told; empty while all is well
};

/// So that PowerPoint asks nobody what is to be saved.
void closeAll(PowerPoint& powerPoint) {
    while (const automation::ObjectPtr application = powerPoint.application()) {
        const automation::LateBound open = memberOf(automation::LateBound(application), u"Presentations");
        if (countOf(open) == 0) {
            return powerPoint.close();
        }
        const automation::LateBound last = itemOf(open, countOf(open));
        last.put(u"Saved", true);
        last.call(u"Close");
    }
}

} // namespace

std::vector<Finding> findingsOf(const language::ScenarioFile& file, const language::Scenario& promise,
                                const WorldMaker& makeWorld) {
    const WorldPtr world = makeWorld(nullptr);
    if (!promise.startsBeforeInitQuestion) {
        world->powerPoint().start();
    }
    Inquiry inquiry(*world);
    inquiry.perform(file.course);
    inquiry.perform(promise.statements);
    std::vector<Finding> findings = inquiry.findings();
    closeAll(world->powerPoint());
    return findings;
}

} // namespace host
