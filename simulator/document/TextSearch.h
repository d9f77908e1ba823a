#pragma once

#include "simulator/document/TextStory.h"

#include <optional>

namespace simulator {

/// A text looked for as PowerPoint's Find does.
struct TextSearch {
    std::u16string what;
    bool matchCase = false;
    bool wholeWords = false; ///< not beside a letter or a digit

    /// The first place within a span where the text stands; none for an empty text.
    [[nodiscard]] std::optional<Span> in(const TextStory& story, Span span) const;
};

} // namespace simulator
