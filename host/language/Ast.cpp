#include "host/language/Ast.h"

#include <algorithm>

namespace host::language {

const Expectation* Scenario::lastExpectation() const {
    const auto last = std::find_if(statements.rbegin(), statements.rend(), [](const Statement& statement) {
        return std::holds_alternative<Check>(statement.node);
    });
    return last == statements.rend() ? nullptr : &std::get<Check>(last->node).expected;
}

} // namespace host::language
