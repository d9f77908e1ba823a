#include "host/reason/Ways.h"

#include "automation/Text.h"

namespace host::reason {

using automation::Value;
using language::Expression;
using language::Reference;

Path Ways::of(const Expression& expression) const {
    const auto* const reference = std::get_if<Reference>(&expression.node);
    if (reference == nullptr) {
        return {};
    }
    std::vector<Value> arguments;
    for (const Expression& argument : reference->arguments) {
        arguments.push_back(evaluate_(argument));
    }
    if (reference->object) {
        return of(*reference->object).to(reference->name, std::move(arguments));
    }
    const auto variable = variables_.find(automation::lowerCase(reference->name));
    if (variable == variables_.end()) {
        return Path().to(reference->name, std::move(arguments));
    }
    return arguments.empty() ? variable->second : variable->second.to({}, std::move(arguments));
}

void Ways::follow(const language::Assignment& assignment) {
    const auto& variable = std::get<Reference>(assignment.target.node);
    variables_[automation::lowerCase(variable.name)] = of(assignment.value);
}

std::map<std::string, Value> valuesStated(const std::vector<language::Statement>& expectations) {
    const auto digits = [](const Expression& expression) {
        const auto* const literal = std::get_if<language::Literal>(&expression.node);
        return literal == nullptr ? Value() : literal->value;
    };
    std::map<std::string, Value> values;
    Ways ways(digits);
    for (const language::Statement& statement : expectations) {
        if (const auto* const assignment = std::get_if<language::Assignment>(&statement.node)) {
            ways.follow(*assignment);
        } else if (const auto* const stated = std::get_if<language::ExpectValues>(&statement.node)) {
            for (const language::Equation& equation : stated->equations) {
                values[ways.of(equation.actual).display()] = digits(equation.wanted);
            }
        }
    }
    return values;
}

} // namespace host::reason
