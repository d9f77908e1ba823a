#pragma once

#include "automation/Object.h"

#include <string>
#include <string_view>

namespace host::language {

/// The published members of an object whose names are nearly `name`, as the end of a message: `: Fill or Line?`; empty
/// where there are none, or the object does not tell its members.
[[nodiscard]] std::u16string likeness(const automation::Object& object, std::u16string_view name);

} // namespace host::language
