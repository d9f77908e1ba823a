#pragma once

#include "host/language/Ast.h"

namespace host::language {

/// The names in statements, performed one after another, that stand for nothing: variables that nothing before them
/// sets, and what PowerPoint's application does not publish; and dots without a With. The first one of each statement.
[[nodiscard]] std::vector<Remark> unknownNames(const std::vector<Statement>& statements);

} // namespace host::language
