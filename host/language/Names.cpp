#include "host/language/Names.h"

#include "automation/Text.h"
#include "host/language/Constants.h"
#include "host/language/Functions.h"
#include "host/language/Likeness.h"
#include "host/language/PowerPointNames.h"

#include <set>

namespace host::language {

namespace {

/// False for an element of an array, and for a member.
bool isVariable(const Reference& target) {
    return !target.object && target.arguments.empty();
}

class Names {
public:
    void read(const std::vector<Statement>& statements) {
        for (const Statement& statement : statements) {
            try {
                std::visit([this](const auto& node) { visit(node); }, statement.node);
            } catch (const SyntaxError& error) {
                unknown_.push_back(error.remark);
            }
        }
    }

    [[nodiscard]] std::vector<Remark> unknown() && { return std::move(unknown_); }

private:
    void visit(const Call& call) { visit(call.target); }
    void visit(const Check& /*check*/) {}
    void visit(const Assignment& assignment) {
        visit(assignment.value);
        const auto& target = std::get<Reference>(assignment.target.node);
        if (isVariable(target)) {
            set(target.name);
        } else {
            visit(assignment.target);
        }
    }
    void visit(const ExpectValues& expectation) {
        for (const auto& [actual, wanted] : expectation.equations) {
            visit(actual);
            visit(wanted);
        }
    }
    /// What must raise may raise by its name.
    void visit(const ExpectError& expectation) { setAllOf(expectation.statements); }
    void visit(const Declaration& declaration) {
        for (const Declared& declared : declaration.variables) {
            for (const Bounds& bounds : declared.dimensions) {
                visit(bounds.last);
                if (bounds.first) {
                    visit(*bounds.first);
                }
            }
            set(declared.name);
        }
    }
    void visit(const With& with) {
        visit(with.subject);
        ++depth_;
        read(with.body);
        --depth_;
    }
    void visit(const If& choice) {
        for (const Branch& branch : choice.branches) {
            if (branch.condition) {
                visit(*branch.condition);
            }
            read(branch.body);
        }
    }
    void visit(const ForNumbers& loop) {
        visit(loop.first);
        visit(loop.last);
        if (loop.step) {
            visit(*loop.step);
        }
        repeat(loop.variable, loop.body);
    }
    void visit(const ForEach& loop) {
        visit(loop.collection);
        repeat(loop.variable, loop.body);
    }

    void visit(const While& loop) {
        visit(loop.condition);
        setAllOf(loop.body);
        read(loop.body);
    }
    void visit(const SelectCase& selection) {
        visit(selection.subject);
        for (const Case& each : selection.cases) {
            for (const CaseRange& range : each.ranges) {
                visit(range.first);
                if (range.last) {
                    visit(*range.last);
                }
            }
            read(each.body);
        }
    }

    /// What one pass through a loop sets is set in the next.
    void repeat(const std::u16string& variable, const std::vector<Statement>& body) {
        set(variable);
        setAllOf(body);
        read(body);
    }

    void visit(const Expression& expression) {
        if (const auto* const operation = std::get_if<Operation>(&expression.node)) {
            for (const Expression& operand : operation->operands) {
                visit(operand);
            }
        } else if (const auto* const reference = std::get_if<Reference>(&expression.node)) {
            visit(*reference, expression.place);
        } else if (std::holds_alternative<Subject>(expression.node) && depth_ == 0) {
            throw SyntaxError({expression.place, "expected 'With' around a name that begins with a dot"});
        }
    }
    void visit(const Reference& reference, Position place) {
        if (reference.object) {
            visit(*reference.object);
        } else {
            require(reference.name, place);
        }
        for (const Expression& argument : reference.arguments) {
            visit(argument);
        }
    }

    void set(const std::u16string& name) { variables_.insert(automation::lowerCase(name)); }
    void setAllOf(const std::vector<Statement>& statements) {
        for (const Statement& statement : statements) {
            if (const auto* const assignment = std::get_if<Assignment>(&statement.node)) {
                if (const auto& target = std::get<Reference>(assignment->target.node); isVariable(target)) {
                    set(target.name);
                }
            }
            for (const std::vector<Statement>* const block : blocksOf(statement)) {
                setAllOf(*block);
            }
        }
    }

    void require(const std::u16string& name, Position place) const {
        if (!variables_.contains(automation::lowerCase(name)) && !isReserved(name) && !isFunction(name) &&
            !isMemberInPowerPoint(u"Application", name)) {
            const std::vector<std::u16string_view> variables(variables_.begin(), variables_.end());
            throw SyntaxError({place, automation::toUtf8(unknownName(name, variables))});
        }
    }

    std::set<std::u16string> variables_; ///< in lower case
    std::size_t depth_ = 0;              ///< of the With around
    std::vector<Remark> unknown_;
};

} // namespace

std::vector<Remark> unknownNames(const std::vector<Statement>& statements) {
    Names names;
    names.read(statements);
    return std::move(names).unknown();
}

} // namespace host::language
