#pragma once

#include "automation/Object.h"

#include <string>
#include <string_view>
#include <vector>

/// Messages about names that are not known, with those that are nearly the same.
namespace host::language {

/// Those of the names that are nearly `wanted`, as the end of a message: `: Fill or Line?`; empty where there are none.
[[nodiscard]] std::u16string suggestion(std::u16string_view wanted, const std::vector<std::u16string_view>& names);

/// What to say of a member that an object with a class does not have, or cannot be reached so.
[[nodiscard]] std::u16string missingMember(const automation::Object& object, std::u16string_view name,
                                           automation::Access access);

/// What to say of a name that is neither one of these variables nor answered by the application.
[[nodiscard]] std::u16string unknownName(std::u16string_view name, std::vector<std::u16string_view> variables);

/// That PowerPoint has something which the embedded one lacks.
[[nodiscard]] std::u16string notEmbedded(std::u16string_view what);

} // namespace host::language
