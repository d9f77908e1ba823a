#include "tests/trials/learners/judges/Words.h"

#include <algorithm>

namespace trials::learners {

namespace {

constexpr std::u16string_view blanks = u" \t\u00A0";

} // namespace

std::u16string_view Word::trimmed() const noexcept {
    const std::size_t first = std::min(text.find_first_not_of(u' '), text.size());
    const std::size_t last = text.find_last_not_of(u' ') + 1;
    return text.substr(first, std::max(first, last) - first);
}

std::vector<Word> paragraphsOf(std::u16string_view text) {
    std::vector<Word> paragraphs;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(u'\r', start), text.size());
        paragraphs.push_back({start, text.substr(start, end - start)});
        start = end + 1;
    }
    return paragraphs;
}

std::vector<Word> wordsOf(std::u16string_view text) {
    std::vector<Word> words;
    for (const Word& paragraph : paragraphsOf(text)) {
        for (std::size_t start = 0; start < paragraph.text.size();) {
            const std::size_t blank = paragraph.text.find_first_of(blanks, start);
            const std::size_t end = std::min(paragraph.text.find_first_not_of(blanks, blank), paragraph.text.size());
            words.push_back({paragraph.start + start, paragraph.text.substr(start, end - start)});
            start = end;
        }
    }
    return words;
}

} // namespace trials::learners
