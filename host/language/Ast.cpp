#include "host/language/Ast.h"

namespace host::language {

const Expectation* Scenario::lastExpectation() const {
    for (auto statement = statements.rbegin(); statement != statements.rend(); ++statement) {
        if (const auto* const check = std::get_if<Check>(&statement->node)) {
            return &check->expected;
        }
    }
    return nullptr;
}

} // namespace host::language
