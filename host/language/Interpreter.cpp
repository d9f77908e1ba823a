#include "host/language/Interpreter.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "host/language/Likeness.h"
#include "host/language/Operators.h"

namespace host::language {

namespace {

using automation::Access;
using automation::Error;
using automation::ObjectPtr;
using automation::RunTimeError;
using automation::Value;

/// An error with the place of the member that raised it, on its way through an expression.
struct Raised {
    Position place;
    Error error;
};

template <typename Step> decltype(auto) placed(Position place, const Step& step) {
    try {
        return step();
    } catch (const Error& error) {
        throw Raised{place, error};
    }
}

ObjectPtr objectIn(const Value& value) {
    ObjectPtr object = value.to<ObjectPtr>();
    if (!object) {
        automation::raise(RunTimeError::ObjectNotSet);
    }
    return object;
}

/// Reaches a member; the error of one that is missing names it and its class.
Value reach(const Value& object, std::u16string_view name, Access access, std::span<Value> arguments) {
    const ObjectPtr target = objectIn(object);
    try {
        return target->invoke(name, access, arguments);
    } catch (const Error& error) {
        const std::u16string className = target->className();
        if (!error.is(RunTimeError::MemberNotFound) || className.empty() || name.empty()) {
            throw;
        }
        const std::u16string_view verb = access == Access::Put ? u" to be set" : u"";
        throw Error(error.number(), error.source(),
                    className + u" has no member '" + std::u16string(name) + u"'" + std::u16string(verb) +
                        likeness(*target, name));
    }
}

/// An object stands for the value of its default member, as macros have it where `Set` is not said.
Value plain(const Value& value) {
    return value.isObject() ? reach(value, {}, Access::GetOrCall, {}) : value;
}

/// What the application answers for a name that is no variable.
Value memberOfApplication(const ObjectPtr& application, const std::u16string& name, std::span<Value> arguments) {
    try {
        return application->invoke(std::u16string_view(name), Access::GetOrCall, arguments);
    } catch (const Error& error) {
        if (!error.is(RunTimeError::MemberNotFound)) {
            throw;
        }
        throw Error(error.number(), error.source(),
                    u"'" + name + u"' is neither a variable nor a member of PowerPoint's application");
    }
}

} // namespace

void Interpreter::execute(const Statement& statement) {
    place_ = statement.place;
    try {
        std::visit([this](const auto& node) { perform(node); }, statement.node);
    } catch (const Raised& raised) {
        throw Failure({raised.place, inWords(raised.error)}, raised.error.number());
    }
}

Value Interpreter::evaluate(const Expression& expression) {
    try {
        return valueOf(expression);
    } catch (const Raised& raised) {
        throw Failure({raised.place, inWords(raised.error)}, raised.error.number());
    }
}

void Interpreter::perform(const Call& call) {
    valueOf(call.target);
}

void Interpreter::perform(const Assignment& assignment) {
    const auto& target = std::get<Reference>(assignment.target.node);
    Value value = valueOf(assignment.value);
    value =
        placed(assignment.value.place, [&] { return assignment.isSet ? Value(value.to<ObjectPtr>()) : plain(value); });
    if (!target.object) {
        variables_[automation::lowerCase(target.name)] = std::move(value);
        return;
    }
    const Value object = valueOf(*target.object);
    std::vector<Value> arguments = argumentsOf(target);
    arguments.push_back(std::move(value));
    placed(assignment.target.place, [&] { return reach(object, target.name, Access::Put, arguments); });
}

void Interpreter::perform(const Check& check) {
    const Reading reading = stage_.testePoint();
    if (!check.expected.matches(reading)) {
        throw Failure({place_, "expected " + check.expected.display() + ", the host reads " + reading.explained()});
    }
}

void Interpreter::perform(const ExpectValues& expectation) {
    for (const auto& [actual, wanted] : expectation.equations) {
        const Value found = valueOf(actual);
        const Value value = valueOf(wanted);
        if (!placed(actual.place, [&] { return areEqual(found, value); })) {
            throw Failure({actual.place, "expected " + automation::toUtf8(value.display()) + ", found " +
                                             automation::toUtf8(found.display())});
        }
    }
}

void Interpreter::perform(const ExpectError& expectation) {
    for (const Statement& statement : expectation.statements) {
        try {
            std::visit([this](const auto& node) { perform(node); }, statement.node);
        } catch (const Raised& raised) {
            if (expectation.error.matches(raised.error)) {
                continue;
            }
            throw Failure(
                {raised.place, "expected " + expectation.error.display() + ", found the " + inWords(raised.error)});
        }
        throw Failure({statement.place, "expected " + expectation.error.display() + ", nothing was raised"});
    }
}

Value Interpreter::valueOf(const Expression& expression) {
    if (const auto* const literal = std::get_if<Literal>(&expression.node)) {
        return literal->value;
    }
    if (const auto* const reference = std::get_if<Reference>(&expression.node)) {
        return valueOf(*reference, expression.place);
    }
    if (const auto* const operation = std::get_if<Operation>(&expression.node)) {
        return valueOf(*operation, expression.place);
    }
    return automation::Missing{};
}

Value Interpreter::valueOf(const Reference& reference, Position place) {
    const Value object = reference.object ? valueOf(*reference.object) : Value();
    std::vector<Value> arguments = argumentsOf(reference);
    return placed(place, [&] {
        return reference.object ? reach(object, reference.name, Access::GetOrCall, arguments)
                                : head(reference, arguments);
    });
}

Value Interpreter::valueOf(const Operation& operation, Position place) {
    const Value left = valueOf(operation.operands.front());
    if (operation.operands.size() == 1) {
        return placed(place, [&] { return apply(operation.sign, Value(std::int32_t(0)), left); });
    }
    const Value right = valueOf(operation.operands.back());
    return placed(place, [&] { return apply(operation.sign, left, right); });
}

std::vector<Value> Interpreter::argumentsOf(const Reference& reference) {
    std::vector<Value> arguments;
    for (const Expression& argument : reference.arguments) {
        arguments.push_back(valueOf(argument));
    }
    return arguments;
}

Value Interpreter::head(const Reference& reference, std::span<Value> arguments) {
    const auto itself = [&](const Value& value) {
        return arguments.empty() ? value : reach(value, {}, Access::GetOrCall, arguments);
    };
    if (const auto variable = variables_.find(automation::lowerCase(reference.name)); variable != variables_.end()) {
        return itself(variable->second);
    }
    if (automation::equalIgnoringCase(reference.name, u"RGB")) {
        return colorOf(arguments);
    }
    if (automation::equalIgnoringCase(reference.name, u"Array")) {
        return automation::Array(arguments.begin(), arguments.end());
    }
    if (const ObjectPtr object = stage_.object(reference.name)) {
        return itself(object);
    }
    const ObjectPtr application = stage_.application();
    if (automation::equalIgnoringCase(reference.name, u"Application")) {
        return itself(application);
    }
    return memberOfApplication(application, reference.name, arguments);
}

} // namespace host::language
