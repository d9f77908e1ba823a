#pragma once

#include "automation/Object.h"

#include <iosfwd>

namespace host {

/// Prints the active presentation of an application: a line a slide, with its shapes by name, all with the identity
/// that the module has given them. Raises what PowerPoint raises.
void printContents(const automation::ObjectPtr& application, std::ostream& out);

/// The same with place, size and colours of each shape, in points, and with the items of groups.
void printDetails(const automation::ObjectPtr& application, std::ostream& out);

} // namespace host
