#pragma once

#include "automation/Object.h"
#include "automation/Unmoved.h"
#include "host/language/Arrays.h"
#include "host/language/Ast.h"
#include "host/language/Functions.h"

#include <map>

namespace host::language {

/// What statements act on.
class Stage : automation::Unmoved {
public:
    virtual ~Stage() = default;

    /// PowerPoint's application, whose members are named without more. Raises CannotCreateObject (429) where it does
    /// not run.
    virtual automation::ObjectPtr application() = 0;
    /// An object of the language's own, by its name; null where there is none.
    virtual automation::ObjectPtr object(std::u16string_view name) = 0;
    /// One TestePoint of the host, and what it reads then.
    virtual Reading testePoint() = 0;
    /// Called before each turn of a block of statements. Raises where it is time to end it.
    virtual void beginTurn() {}
};

/// Performs statements, late-bound, and keeps their variables.
class Interpreter {
public:
    /// `stage` must outlive the interpreter.
    explicit Interpreter(Stage& stage) : stage_(stage) {}

    /// Raises Failure where the statement raises, or finds something else than it expects.
    void execute(const Statement& statement);
    /// Raises Failure where reading it raises.
    [[nodiscard]] automation::Value evaluate(const Expression& expression);
    /// Drops what the variables hold.
    void forget() noexcept { variables_.clear(); }

private:
    void perform(const Call& call);
    void perform(const Assignment& assignment);
    void perform(const Check& check);
    void perform(const ExpectValues& expectation);
    void perform(const ExpectError& expectation);
    void perform(const Declaration& declaration);
    void perform(const With& with);
    void perform(const If& choice);
    void perform(const ForNumbers& loop);
    void perform(const ForEach& loop);
    void perform(const While& loop);
    void perform(const SelectCase& selection);
    void perform(const Statement& statement);
    void performAll(const std::vector<Statement>& statements);

    automation::Value valueOf(const Expression& expression);
    automation::Value valueOf(const Reference& reference, Position place);
    [[nodiscard]] bool holds(const Expression& condition);
    [[nodiscard]] bool contains(const CaseRange& range, const automation::Value& value);
    automation::Value valueOf(const Operation& operation, Position place);
    std::vector<automation::Value> argumentsOf(const Reference& reference);
    /// The variable that an expression is; null for any other expression.
    [[nodiscard]] const Variable* variableOf(const Expression& expression) const;
    void setVariable(const Reference& target, Variable assigned);
    [[nodiscard]] Variable declaredAs(const Declared& declared);
    [[nodiscard]] std::int32_t boundOf(const Reference& reference, std::span<const automation::Value> arguments);
    automation::Value head(const Reference& reference, const automation::Name& name,
                           std::span<automation::Value> arguments);
    automation::Value memberOfApplication(const automation::Name& name, std::span<automation::Value> arguments);

    Stage& stage_;
    std::map<std::u16string, Variable> variables_; ///< by their names in lower case
    Functions functions_;
    std::vector<automation::Value> subjects_; ///< of the With around, the innermost one last
    Position place_;                          ///< of the statement being performed
};

} // namespace host::language
