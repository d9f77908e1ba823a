#pragma once

#include "simulator/document/TextFormat.h"
#include "simulator/files/text/FontTable.h"
#include "simulator/files/text/TextException.h"

namespace simulator::text {

/// Puts what a run says of its characters over what they inherit.
void overlay(const TextException& exception, const FontTable& fonts, CharacterFormat& format);
/// Puts what a run says of its paragraphs over what they inherit; spacing is taken where it is counted in lines.
void overlay(const TextException& exception, ParagraphFormat& format);

/// A run that says everything of its characters; fonts that are missing are added to the table.
[[nodiscard]] TextException codeOf(const CharacterFormat& format, FontTable& fonts);
[[nodiscard]] TextException codeOf(const ParagraphFormat& format);

} // namespace simulator::text
