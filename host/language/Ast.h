#pragma once

#include "automation/Value.h"
#include "host/language/Expectation.h"
#include "host/language/Position.h"

#include <memory>
#include <optional>
#include <span>
#include <variant>

namespace host::language {

struct Expression;
struct Statement;

/// A literal or a named constant.
struct Literal {
    automation::Value value;
};

/// An argument left out.
struct Omitted {};

/// The object of the `With` around: what stands before a dot that begins a name.
struct Subject {};

/// A name with its arguments: of a variable or of the application where `object` is null, else a member of `object`.
/// The empty name stands for the default member.
struct Reference {
    std::unique_ptr<Expression> object;
    std::u16string name;
    std::vector<Expression> arguments;
    std::vector<std::u16string> parameters; ///< the names of the last arguments, where they are named
};

/// What stands between two operands, or before one.
enum class Operator : std::uint8_t {
    Or,
    And,
    Not,
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Is,
    Join,
    Add,
    Subtract,
    Modulo,
    DivideWhole,
    Multiply,
    Divide,
    Negate,
};

struct Operation {
    Operator sign = Operator::Join;
    std::vector<Expression> operands;
};

struct Expression {
    Position place;
    std::variant<Literal, Omitted, Subject, Reference, Operation> node;
};

/// `x = value`, `x(index) = value`, `x.Member = value`, with or without `Set`.
struct Assignment {
    Expression target; ///< a reference
    Expression value;
    bool isSet = false;
};

/// A member called for what it does.
struct Call {
    Expression target; ///< a reference
};

/// One TestePoint, and what the host must read.
struct Check {
    Expectation expected;
};

/// A value that must be found.
struct Equation {
    Expression actual;
    Expression wanted;
};

/// Values that must be found, in order.
struct ExpectValues {
    std::vector<Equation> equations;
};

/// Statements that must each raise.
struct ExpectError {
    ExpectedError error;
    std::vector<Statement> statements;
};

/// `first To last`, the places of a dimension of an array; from 0 where there is no first.
struct Bounds {
    std::optional<Expression> first;
    Expression last;
};

/// A variable, with what it, or each element of it, begins with.
struct Declared {
    std::u16string name;
    bool isArray = false;
    std::vector<Bounds> dimensions; ///< none for an array that has no elements yet
    automation::Value initial;
};

/// `Dim`: a variable that is set already keeps its value. `ReDim`: every one becomes an array anew, with the elements
/// that it has where they are to be preserved.
struct Declaration {
    std::vector<Declared> variables;
    bool isAnew = false;
    bool preserves = false;
};

/// Statements in which a dot that begins a name stands behind an object.
struct With {
    Expression subject;
    std::vector<Statement> body;
};

/// Statements performed where a condition holds; always where there is none.
struct Branch {
    std::optional<Expression> condition;
    std::vector<Statement> body;
};

/// The first branch whose condition holds.
struct If {
    std::vector<Branch> branches;
};

/// `For variable = first To last Step step`.
struct ForNumbers {
    std::u16string variable;
    Expression first;
    Expression last;
    std::optional<Expression> step;
    std::vector<Statement> body;
};

/// `For Each variable In collection`.
struct ForEach {
    std::u16string variable;
    Expression collection;
    std::vector<Statement> body;
};

/// `While condition`, `Do While condition`, `Do Until condition`.
struct While {
    Expression condition; ///< for going on
    std::vector<Statement> body;
};

/// Values from the first to the last; one alone where there is no last.
struct CaseRange {
    Expression first;
    std::optional<Expression> last;
};

/// `Case first To last, value`; `Case Else` where there are no values.
struct Case {
    std::vector<CaseRange> ranges;
    std::vector<Statement> body;
};

/// `Select Case subject`: the first case that has its value.
struct SelectCase {
    Expression subject;
    std::vector<Case> cases;
};

struct Statement {
    Position place;
    std::u16string text; ///< as it is written, without blanks around it and comments; a block has its lines, indented
    std::variant<Call, Assignment, Check, ExpectValues, ExpectError, Declaration, With, If, ForNumbers, ForEach, While,
                 SelectCase>
        node;
};

/// The statements inside one, block by block.
[[nodiscard]] std::vector<const std::vector<Statement>*> blocksOf(const Statement& statement);
/// True for an expectation or a check, and for a block with one.
[[nodiscard]] bool expectsSomething(const Statement& statement);

/// On what grounds a promise of PowerPoint's stands: its documentation says so, or nobody has found that it does, or it
/// does but the module's questions are described otherwise.
enum class Grounds : std::uint8_t { Documented, Assumed, Contested };

/// What happens from one InitQuestion to the closing of the question; in a file about a class, a promise of it.
struct Scenario {
    Position place;
    std::u16string title;
    bool startsBeforeInitQuestion = false; ///< the scenario states InitQuestion itself
    std::vector<Statement> statements;
    Grounds grounds = Grounds::Documented; ///< of a promise
    std::u16string decides;                ///< the questions and letters that hang on a promise; may be empty

    /// What happens before the first check; everything where there is none.
    [[nodiscard]] std::span<const Statement> firstMoves() const;
    /// What the last check of the scenario expects; null where it has none.
    [[nodiscard]] const Expectation* lastExpectation() const;
};

/// A verdict that a question can come to, and what it says of the learner's work.
struct Meaning {
    Position place;
    Expectation verdict; ///< a letter, a remark or a raised error
    std::u16string text; ///< in a sentence
};

/// What is known of a question beside the learners' moves. Every part may be missing.
struct Contract {
    std::u16string task; ///< what the learner is to do, in a sentence
    std::vector<Meaning> meanings;
    std::vector<Statement> delivered; ///< what the presentation delivered must fulfil

    /// The letters declared, those of remarks among them, in order.
    [[nodiscard]] std::vector<std::u16string> letters() const;
    /// What a letter means; null where it is not declared.
    [[nodiscard]] const Meaning* meaningOf(std::u16string_view letter) const;
    /// What the host reads where the learner has done the task.
    [[nodiscard]] Expectation success() const;
    /// What a check that says this asks for: `success` is what the question has for it.
    [[nodiscard]] Expectation meantBy(const Expectation& stated) const;
};

/// A scenario file.
struct ScenarioFile {
    std::string name;
    std::int32_t question = 0;
    std::u16string className; ///< of PowerPoint's, in a file of promises, which has no question
    std::u16string heading;   ///< what the comment above the question says
    Contract contract;
    std::vector<Statement> course; ///< statements that build the presentation delivered
    std::vector<Scenario> scenarios;

    /// What the file is about, on a line: its question and task, or else its heading; may be empty.
    [[nodiscard]] std::u16string subject() const;
};

} // namespace host::language
