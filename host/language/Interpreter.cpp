#include "host/language/Interpreter.h"

#include "automation/Elements.h"
#include "automation/Text.h"
#include "host/language/Likeness.h"
#include "host/language/Operators.h"
#include "host/language/Reach.h"

#include <algorithm>

namespace host::language {

namespace {

using automation::Access;
using automation::Error;
using automation::Name;
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

/// The names of arguments, as a call takes them.
std::vector<std::u16string_view> viewsOf(const std::vector<std::u16string>& names) {
    return {names.begin(), names.end()};
}

/// One more object for the dots of a With, for the length of a scope.
class Within : automation::Unmoved {
public:
    Within(std::vector<Value>& all, Value subject) : all_(all) { all_.push_back(std::move(subject)); }
    ~Within() { all_.pop_back(); }

private:
    std::vector<Value>& all_;
};

} // namespace

void Interpreter::execute(const Statement& statement) {
    try {
        perform(statement);
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

void Interpreter::perform(const Statement& statement) {
    place_ = statement.place;
    std::visit([this](const auto& node) { perform(node); }, statement.node);
}

void Interpreter::performAll(const std::vector<Statement>& statements) {
    placed(place_, [this] { stage_.beginTurn(); });
    for (const Statement& statement : statements) {
        perform(statement);
    }
}

void Interpreter::perform(const Declaration& declaration) {
    for (const Declared& declared : declaration.variables) {
        const std::u16string name = automation::lowerCase(declared.name);
        const auto before = variables_.find(name);
        if (before == variables_.end()) {
            variables_[name] = declaredAs(declared);
        } else if (declaration.isAnew) {
            Variable variable = declaredAs(declared);
            if (declaration.preserves) {
                placed(place_, [&] { keepElements(variable, before->second); });
            }
            before->second = std::move(variable);
        }
    }
}

Variable Interpreter::declaredAs(const Declared& declared) {
    if (!declared.isArray) {
        return {declared.initial, {}};
    }
    const auto numberOf = [this](const Expression& expression) {
        const Value value = valueOf(expression);
        return placed(expression.place, [&] { return plain(value).to<std::int32_t>(); });
    };
    std::vector<Dimension> dimensions;
    for (const Bounds& bounds : declared.dimensions) {
        const std::int32_t first = bounds.first ? numberOf(*bounds.first) : 0;
        dimensions.push_back({first, numberOf(bounds.last)});
    }
    return placed(place_, [&] { return arrayOf(dimensions, declared.initial); });
}

void Interpreter::perform(const With& with) {
    const Within within(subjects_, valueOf(with.subject));
    performAll(with.body);
}

void Interpreter::perform(const If& choice) {
    for (const auto& branch : choice.branches) {
        if (!branch.condition || holds(*branch.condition)) {
            return performAll(branch.body);
        }
    }
}

void Interpreter::perform(const ForNumbers& loop) {
    const auto numberOf = [this](const Expression& expression) {
        const Value value = valueOf(expression);
        return placed(expression.place, [&] { return plainNumber(value); });
    };
    Value counter = numberOf(loop.first);
    const Value last = numberOf(loop.last);
    const Value step = loop.step ? numberOf(*loop.step) : Value(std::int32_t(1));
    const bool isDown = step.to<double>() < 0;
    Value& variable = (variables_[automation::lowerCase(loop.variable)] = Variable()).value;
    const auto isOver = [&] { return apply(isDown ? Operator::Less : Operator::Greater, counter, last).to<bool>(); };
    for (variable = counter; !isOver(); variable = counter) {
        performAll(loop.body);
        counter = placed(place_, [&] { return apply(Operator::Add, variable, step); });
    }
}

void Interpreter::perform(const ForEach& loop) {
    const Value collection = valueOf(loop.collection);
    const auto in = [&](const auto& step) { return placed(loop.collection.place, step); };
    if (collection.is<automation::Array>()) {
        for (const Value& element : collection.as<automation::Array>()) {
            variables_[automation::lowerCase(loop.variable)] = {element, {}};
            performAll(loop.body);
        }
        return;
    }
    const ObjectPtr elements =
        in([&] { return objectIn(reach(collection, automation::newEnum, Access::GetOrCall, {})); });
    const auto next = [&] { return in([&] { return elements->invoke(u"Next", Access::Call, {}); }); };
    for (Value element = next(); !element.isMissing(); element = next()) {
        variables_[automation::lowerCase(loop.variable)] = {element, {}};
        performAll(loop.body);
    }
}

void Interpreter::perform(const While& loop) {
    while (holds(loop.condition)) {
        performAll(loop.body);
    }
}

void Interpreter::perform(const SelectCase& selection) {
    const Value subject = plain(valueOf(selection.subject));
    for (const Case& each : selection.cases) {
        const auto isIn = [&](const CaseRange& range) { return contains(range, subject); };
        if (each.ranges.empty() || std::any_of(each.ranges.begin(), each.ranges.end(), isIn)) {
            return performAll(each.body);
        }
    }
}

bool Interpreter::holds(const Expression& condition) {
    const Value value = valueOf(condition);
    return placed(condition.place, [&] { return value.to<bool>(); });
}

bool Interpreter::contains(const CaseRange& range, const Value& value) {
    const Value first = valueOf(range.first);
    const Value last = range.last ? valueOf(*range.last) : first;
    return placed(range.first.place, [&] {
        return apply(Operator::GreaterOrEqual, value, first).to<bool>() &&
               apply(Operator::LessOrEqual, value, last).to<bool>();
    });
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
        const Variable* const source = variableOf(assignment.value);
        Variable assigned{std::move(value), source == nullptr ? std::vector<std::int32_t>() : source->firsts};
        return placed(assignment.target.place, [&] { setVariable(target, std::move(assigned)); });
    }
    const Value object = valueOf(*target.object);
    std::vector<Value> arguments = argumentsOf(target);
    arguments.push_back(std::move(value));
    const std::vector<std::u16string_view> parameters = viewsOf(target.parameters);
    const Name name(target.name, {}, parameters);
    placed(assignment.target.place, [&] { put(object, name, arguments, assignment.isSet); });
}

void Interpreter::setVariable(const Reference& target, Variable assigned) {
    const std::u16string name = automation::lowerCase(target.name);
    if (target.arguments.empty()) {
        variables_[name] = std::move(assigned);
        return;
    }
    const std::vector<Value> indices = argumentsOf(target);
    const auto variable = variables_.find(name);
    if (variable == variables_.end()) {
        automation::raise(RunTimeError::TypeMismatch);
    }
    setElement(variable->second, indices, std::move(assigned.value));
}

void Interpreter::perform(const Check& check) {
    const Reading reading = stage_.testePoint();
    if (!check.expected.matches(reading)) {
        const bool isRaised =
            check.expected.kind == Expectation::Kind::Success && reading.error && reading.error->number() == 0;
        throw Failure({place_, "expected " + check.expected.display() + ", the host reads " + reading.explained() +
                                   (isRaised ? "; where that is the success, the file says so before its course: "
                                               "error 0 \"SERVICE TestePoint\": \"...\""
                                             : "")});
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
            perform(statement);
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
    if (std::holds_alternative<Subject>(expression.node)) {
        return subjects_.empty() ? Value(nullptr) : subjects_.back();
    }
    return automation::Missing{};
}

Value Interpreter::valueOf(const Reference& reference, Position place) {
    const Value object = reference.object ? valueOf(*reference.object) : Value();
    std::vector<Value> arguments = argumentsOf(reference);
    const std::vector<std::u16string_view> parameters = viewsOf(reference.parameters);
    const Name name(reference.name, {}, parameters);
    return placed(place, [&] {
        if (object.is<automation::Array>() && reference.name.empty()) {
            return elementOf(Variable{object, {}}, arguments);
        }
        return reference.object ? reach(object, name, Access::GetOrCall, arguments) : head(reference, name, arguments);
    });
}

Value Interpreter::valueOf(const Operation& operation, Position place) {
    const Value left = valueOf(operation.operands.front());
    if (operation.operands.size() == 1) {
        return placed(place, [&] { return apply(operation.sign, left); });
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

Value Interpreter::head(const Reference& reference, const Name& name, std::span<Value> arguments) {
    const auto itself = [&](const Value& value) {
        return arguments.empty() ? value : reach(value, Name({}, {}, name.parameters()), Access::GetOrCall, arguments);
    };
    if (const auto variable = variables_.find(automation::lowerCase(reference.name)); variable != variables_.end()) {
        const Value& held = variable->second.value;
        return held.is<automation::Array>() ? elementOf(variable->second, arguments) : itself(held);
    }
    if (name.matches(u"RGB")) {
        return colorOf(automation::parameters::inOrder(u"Red Green Blue", name.parameters(), Access::Call, arguments));
    }
    if (name.matches(u"Array")) {
        return automation::Array(arguments.begin(), arguments.end());
    }
    if (name.matches(u"LBound") || name.matches(u"UBound")) {
        return boundOf(reference, arguments);
    }
    if (functions_.members().find(name) != nullptr) {
        return functions_.invoke(name, Access::GetOrCall, arguments);
    }
    if (const ObjectPtr object = stage_.object(reference.name)) {
        return itself(object);
    }
    return name.matches(u"Application") ? itself(stage_.application()) : memberOfApplication(name, arguments);
}

/// `LBound` and `UBound` of an array, in its first dimension or another.
std::int32_t Interpreter::boundOf(const Reference& reference, std::span<const Value> arguments) {
    if (arguments.empty()) {
        automation::raise(RunTimeError::ArgumentNotOptional);
    }
    const Variable* const variable = variableOf(reference.arguments.front());
    const auto dimension = arguments.size() > 1 ? arguments[1].to<std::int32_t>() : 1;
    const Dimension found = dimensionOf(variable == nullptr ? Variable{arguments.front(), {}} : *variable, dimension);
    return automation::equalIgnoringCase(reference.name, u"UBound") ? found.last : found.first;
}

const Variable* Interpreter::variableOf(const Expression& expression) const {
    const auto* const named = std::get_if<Reference>(&expression.node);
    if (named == nullptr || named->object || !named->arguments.empty()) {
        return nullptr;
    }
    const auto found = variables_.find(automation::lowerCase(named->name));
    return found == variables_.end() ? nullptr : &found->second;
}

Value Interpreter::memberOfApplication(const Name& name, std::span<Value> arguments) {
    const ObjectPtr application = stage_.application();
    try {
        return application->invoke(name, Access::GetOrCall, arguments);
    } catch (const Error& error) {
        if (!error.is(RunTimeError::MemberNotFound)) {
            throw;
        }
        std::vector<std::u16string_view> variables;
        for (const auto& [known, value] : variables_) {
            variables.push_back(known);
        }
        throw Error(error.number(), error.source(), unknownName(name.text(), variables));
    }
}

} // namespace host::language
