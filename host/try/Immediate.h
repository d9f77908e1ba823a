#pragma once

#include "automation/Value.h"

#include <string>

namespace host {

/// A value as an immediate window prints it: texts on one line, numbers with a blank in the place of the sign, arrays
/// by their elements. Objects are printed as their class and their name, number of items or default value, whichever
/// they have first.
[[nodiscard]] std::string printed(const automation::Value& value);

/// An object in the same way.
[[nodiscard]] std::string printed(const automation::ObjectPtr& object);

} // namespace host
