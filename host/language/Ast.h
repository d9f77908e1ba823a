#pragma once

#include "automation/Value.h"
#include "host/language/Expectation.h"
#include "host/language/Position.h"

#include <memory>
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

/// A name with its arguments: of a variable or of the application where `object` is null, else a member of `object`.
/// The empty name stands for the default member.
struct Reference {
    std::unique_ptr<Expression> object;
    std::u16string name;
    std::vector<Expression> arguments;
};

/// `&`, `+`, `-` between two operands, or `-` before one.
struct Operation {
    char16_t sign = u'&';
    std::vector<Expression> operands;
};

struct Expression {
    Position place;
    std::variant<Literal, Omitted, Reference, Operation> node;
};

/// `x = value`, `x.Member = value`, with or without `Set`.
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

struct Statement {
    Position place;
    std::u16string text; ///< the line as it is written, without blanks around it and without its comment
    std::variant<Call, Assignment, Check, ExpectValues, ExpectError> node;
};

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
