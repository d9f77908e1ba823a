#pragma once

#include "simulator/document/TextStory.h"

namespace simulator {

/// Characters of one row that look alike.
struct TextPiece {
    Span span;
    CharacterFormat format;
};

/// A row of text as it stands in its shape; lengths in points.
struct TextRow {
    Span span; ///< its characters, the blanks at its end included
    std::vector<TextPiece> pieces;
    float width = 0;
    float ascent = 0; ///< from the top of the row to its baseline
    float height = 0;
    std::size_t paragraph = 0; ///< place of its paragraph's format
    bool isFirst = false;      ///< of its paragraph: bears the bullet
};

/// A text broken into rows.
struct TextFlow {
    std::vector<TextRow> rows;
    float width = 0; ///< of the widest row
    float height = 0;
};

/// How far the text of a paragraph stands in from the left, in points, its bullet included.
[[nodiscard]] float indentOf(const ParagraphFormat& format) noexcept;

/// How wide some characters are in one row, in points.
[[nodiscard]] float widthOf(const TextStory& story, Span characters);

/// Breaks a text at blanks where it would be wider than `room`, or not at all where the story does not wrap. Sizes are
/// multiplied by `scale`.
[[nodiscard]] TextFlow flow(const TextStory& story, float room, float scale = 1);

} // namespace simulator
