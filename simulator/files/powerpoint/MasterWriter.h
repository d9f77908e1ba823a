#pragma once

#include "simulator/files/powerpoint/WrittenDocument.h"

namespace simulator::powerpoint {

/// Writes the slide masters and title masters, of which slides are to name the ids; those that are gone leave.
void writeMasters(WrittenDocument& document);
/// Writes the master of notes or handouts, which the record of the document names at a place (`notesMasterPlace`),
/// where it has changed. It may be null.
void writePageMaster(WrittenDocument& document, const SlidePtr& master, std::size_t place);

} // namespace simulator::powerpoint
