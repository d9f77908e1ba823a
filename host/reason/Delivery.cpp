#include "host/reason/Delivery.h"

#include "automation/Text.h"
#include "host/language/Interpreter.h"
#include "host/language/Operators.h"
#include "host/reason/Told.h"
#include "host/reason/Ways.h"
#include "host/run/WorldStage.h"
#include "host/world/Members.h"

#include <algorithm>

namespace host::reason {

namespace {

using automation::Value;
using language::Expression;
using language::Reference;
using language::Remark;

/// Looks at the active presentation, expectation by expectation.
class Inspection {
public:
    explicit Inspection(World& world) : stage_(world), interpreter_(stage_) {}

    std::vector<Remark> of(const std::vector<language::Statement>& expectations) {
        for (const language::Statement& statement : expectations) {
            if (const auto* const values = std::get_if<language::ExpectValues>(&statement.node)) {
                for (const language::Equation& equation : values->equations) {
                    compare(equation);
                }
            } else if (!perform(statement)) {
                break;
            }
        }
        return std::move(remarks_);
    }

private:
    void compare(const language::Equation& equation) {
        try {
            const Value found = interpreter_.evaluate(equation.actual);
            const Value wanted = interpreter_.evaluate(equation.wanted);
            if (!language::areEqual(found, wanted)) {
                const Path path = ways_.of(equation.actual);
                add(equation.actual.place, path.place(),
                    path.behind() + " is " + toldWithUnits(path, found) + " and should be " +
                        toldWithUnits(path, wanted));
            }
        } catch (const language::Failure& failure) {
            addMissing(equation.actual, failure);
        }
    }

    /// False where nothing can be looked at behind the statement.
    bool perform(const language::Statement& statement) {
        const auto* const assignment = std::get_if<language::Assignment>(&statement.node);
        try {
            interpreter_.execute(statement);
        } catch (const language::Failure& failure) {
            if (assignment == nullptr) {
                remarks_.push_back(failure.remark);
                return true;
            }
            addMissing(assignment->value, failure);
            return false;
        }
        if (assignment != nullptr) {
            ways_.follow(*assignment);
        }
        return true;
    }

    /// What cannot be reached: the failure's place says which member it is.
    void addMissing(const Expression& expression, const language::Failure& failure) {
        const Expression* const culprit = at(failure.remark.place, expression);
        const Path path = ways_.of(culprit != nullptr ? *culprit : expression);
        const std::string sought = soughtText(expression);
        if (!sought.empty()) {
            add(failure.remark.place, path.place(), "its text does not hold " + sought);
        } else if (!path.place().empty() && path.behind().empty()) {
            add(failure.remark.place, path.place(), "it is missing");
        } else {
            remarks_.push_back(failure.remark);
        }
    }

    /// What is amiss at one place is said together.
    void add(language::Position position, const std::string& place, const std::string& what) {
        if (!remarks_.empty() && !place.empty() && place == place_) {
            std::string& message = remarks_.back().message;
            message += message.ends_with(what) ? "" : "; " + what;
        } else {
            remarks_.push_back({position, place + (place.empty() ? "" : ": ") + what});
        }
        place_ = place;
    }

    /// The part of an expression that is at a place of the file.
    static const Expression* at(language::Position place, const Expression& expression) {
        const auto* const reference = std::get_if<Reference>(&expression.node);
        if (expression.place == place || reference == nullptr || !reference->object) {
            return expression.place == place ? &expression : nullptr;
        }
        return at(place, *reference->object);
    }

    /// The text that `Find` is asked for on the way; empty where it is not.
    std::string soughtText(const Expression& expression) {
        const auto* const reference = std::get_if<Reference>(&expression.node);
        if (reference == nullptr || !reference->object) {
            return {};
        }
        const auto* const object = std::get_if<Reference>(&reference->object->node);
        const bool isFind = object != nullptr && automation::equalIgnoringCase(object->name, u"Find");
        return isFind ? automation::toUtf8(interpreter_.evaluate(object->arguments.at(0)).display()) : "";
    }

    WorldStage stage_;
    language::Interpreter interpreter_;
    Ways ways_{[this](const Expression& argument) { return interpreter_.evaluate(argument); }};
    std::vector<Remark> remarks_;
    std::string place_; ///< of the last remark
};

} // namespace

std::vector<Remark> shortcomingsOf(const Course& course, const language::ScenarioFile& file,
                                   const WorldMaker& makeWorld) {
    if (file.contract.delivered.empty()) {
        return {};
    }
    const WorldPtr world = makeWorld(nullptr);
    const std::u16string presentation = course.deliver(*world, file.question).front();
    world->powerPoint().start();
    const automation::LateBound application(world->powerPoint().application());
    memberOf(application, u"Presentations").call(u"Open", world->hostFolder() + presentation);
    std::vector<Remark> remarks = Inspection(*world).of(file.contract.delivered);
    memberOf(application, u"ActivePresentation").call(u"Close");
    world->powerPoint().close();
    return remarks;
}

} // namespace host::reason
