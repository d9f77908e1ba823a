#pragma once

#include "simulator/document/SlideShow.h"
#include "simulator/files/records/Record.h"

/// What files say of how slides are shown.
namespace simulator::powerpoint {

/// As usual where the slide says nothing.
[[nodiscard]] Transition readTransition(const records::Record& slide);
/// Writes it over what the slide says.
void putTransition(records::Record& slide, const Transition& wanted);

/// As usual where the document says nothing.
[[nodiscard]] SlideShowSetup readSlideShow(const records::Record& document);
/// Writes it over what the document says.
void putSlideShow(records::Record& document, const SlideShowSetup& wanted);

} // namespace simulator::powerpoint
