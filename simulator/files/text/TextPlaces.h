#pragma once

#include "simulator/files/records/Record.h"
#include "simulator/files/text/Descent.h"

namespace simulator::text {

/// Carries the records that name characters of a text (links, bookmarks, fields such as the slide's number) over to the
/// changed text; those whose characters are gone go with them.
void movePlaces(std::vector<records::Record>& block, const Descent& descent);

} // namespace simulator::text
