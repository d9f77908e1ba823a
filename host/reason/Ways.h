#pragma once

#include "host/language/Ast.h"
#include "host/reason/Path.h"

#include <functional>
#include <map>

namespace host::reason {

/// The ways that expressions go from the application, through variables.
class Ways {
public:
    /// Tells the value of an argument.
    using Evaluate = std::function<automation::Value(const language::Expression&)>;

    explicit Ways(Evaluate evaluate) : evaluate_(std::move(evaluate)) {}

    [[nodiscard]] Path of(const language::Expression& expression) const;
    /// A variable stands for what has been assigned to it.
    void follow(const language::Assignment& assignment);

private:
    Evaluate evaluate_;
    std::map<std::u16string, Path> variables_;
};

/// The values that expectations state in digits, by what `Path::display` says of their places.
[[nodiscard]] std::map<std::string, automation::Value>
valuesStated(const std::vector<language::Statement>& expectations);

} // namespace host::reason
