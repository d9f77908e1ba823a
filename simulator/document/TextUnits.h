#pragma once

#include "simulator/document/TextStory.h"

#include <cstdint>

namespace simulator {

/// What a stretch of text can be counted in. Lines end with a paragraph mark or a line break (nothing is wrapped here);
/// sentences end with a paragraph mark, or with `.`, `!`, `?` or `…` and the blanks that follow; runs look alike
/// throughout. A plain word ends before punctuation, which is a word of its own with the blanks that follow.
enum class TextUnit : std::uint8_t { Range, Character, Word, PlainWord, Sentence, Line, Paragraph, Run };

/// Number of units in a range of a story, those that reach past its borders included.
[[nodiscard]] std::size_t countUnits(const TextStory& story, Span range, TextUnit unit);

/// The stretch of a range from its unit `first` (from 0), or its last where it has fewer, `count` units long or up to
/// the end of the range; empty, at the end of the range, where it has no units.
[[nodiscard]] Span spanOfUnits(const TextStory& story, Span range, TextUnit unit, std::size_t first, std::size_t count);

} // namespace simulator
