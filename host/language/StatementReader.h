#pragma once

#include "host/language/LineParser.h"

#include <deque>
#include <optional>

namespace host::language {

/// A line with those that continue it behind ` _`.
struct LogicalLine {
    std::u16string text;
    std::vector<Token> tokens; ///< the last one is the end
};

/// Puts lines together.
class LineJoiner {
public:
    /// Takes a line; gives the whole one where it does not go on. Raises SyntaxError.
    [[nodiscard]] std::optional<LogicalLine> add(std::u16string_view line, std::size_t number);
    /// True where a line has been begun and goes on.
    [[nodiscard]] bool isOpen() const noexcept { return !joined_.tokens.empty(); }

private:
    LogicalLine joined_;
};

/// Makes statements of lines, and blocks of statements.
class StatementReader {
public:
    /// Takes the statements of a line; gives those that are complete by it. Raises SyntaxError.
    [[nodiscard]] std::vector<Statement> take(const LogicalLine& line);
    /// True inside a block, and behind an `expect error` that ends with its colon.
    [[nodiscard]] bool isOpen() const noexcept { return !open_.empty(); }
    /// Raises SyntaxError at this place where a block is open.
    void requireClosed(Position place) const;

private:
    /// A block of which more is to come.
    struct Open {
        Statement statement;
        std::vector<Statement>* body; ///< null before the first `Case`
        std::u16string_view closing;  ///< its last words; empty for an `expect error`
    };

    void part(LineParser& words, const LogicalLine& line);
    bool opening(LineParser& words, const LogicalLine& line);
    bool branching(LineParser& words, const LogicalLine& line);
    bool caseLine(LineParser& words, const LogicalLine& line);
    bool closing(LineParser& words);
    void beginIf(LineParser& words, const LogicalLine& line);
    void beginFor(LineParser& words);
    void beginWhile(LineParser& words);
    void begin(decltype(Statement::node) node, Position place, std::u16string_view closing);
    [[nodiscard]] Statement end();
    void put(Statement statement);

    std::deque<Open> open_; ///< the innermost one last; its places stay where they are
    std::vector<Statement> complete_;
};

/// One line typed after another, as a macro has them: statements, and blocks of them.
class MacroReader {
public:
    /// Gives the statements that are complete by this line. Raises SyntaxError; what was begun is dropped then.
    [[nodiscard]] std::vector<Statement> take(std::u16string_view line);
    [[nodiscard]] bool isOpen() const noexcept { return joiner_.isOpen() || statements_.isOpen(); }

private:
    LineJoiner joiner_;
    StatementReader statements_;
};

} // namespace host::language
