#include "simulator/document/TextSearch.h"

#include "automation/Text.h"
#include "simulator/document/LetterCase.h"

#include <algorithm>

namespace simulator {

namespace {

bool isWhole(std::u16string_view text, Span found) {
    const bool joinsBefore = found.start > 0 && isLetterOrDigit(text[found.start - 1]);
    const bool joinsAfter = found.end() < text.size() && isLetterOrDigit(text[found.end()]);
    return !joinsBefore && !joinsAfter;
}

} // namespace

std::optional<Span> TextSearch::in(const TextStory& story, Span span) const {
    const Span within = story.clipped(span);
    const std::u16string_view text = story.text();
    const auto same = [this](char16_t a, char16_t b) {
        return matchCase ? a == b : automation::lowerCase(a) == automation::lowerCase(b);
    };
    for (std::size_t start = within.start; !what.empty() && start + what.size() <= within.end(); ++start) {
        const Span found{start, what.size()};
        const std::u16string_view here = text.substr(found.start, found.length);
        if (std::equal(here.begin(), here.end(), what.begin(), same) && (!wholeWords || isWhole(text, found))) {
            return found;
        }
    }
    return std::nullopt;
}

} // namespace simulator
