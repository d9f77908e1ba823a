#pragma once

#include <string>

namespace host {

/// Shows a page in the user's browser where someone sits at a terminal of a desktop; else does nothing. The address
/// must be of letters, digits and the signs of an address.
void showInBrowser(const std::string& address);

} // namespace host
