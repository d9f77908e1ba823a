#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace trials::learners {

/// A word of a text, with the blanks behind it.
struct Word {
    std::size_t start; ///< from 0
    std::u16string_view text;

    /// The word without the plain spaces around it.
    [[nodiscard]] std::u16string_view trimmed() const noexcept;
};

/// The paragraphs of a text, without their marks; an empty one behind the last mark is none.
[[nodiscard]] std::vector<Word> paragraphsOf(std::u16string_view text);

/// The words of a text; a word never reaches from one paragraph into the next.
[[nodiscard]] std::vector<Word> wordsOf(std::u16string_view text);

} // namespace trials::learners
