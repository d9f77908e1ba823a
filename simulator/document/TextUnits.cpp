#include "simulator/document/TextUnits.h"

#include <algorithm>

namespace simulator {

namespace {

using Spans = std::vector<Span>;

/// What can end a sentence.
constexpr std::u16string_view closing = u".!?\u2026";

constexpr std::u16string_view punctuation = u".,;:!?\u2026()[]{}\"\u00AB\u00BB";

/// Cuts a text behind every place for which `ends` is true.
template <typename Ends> Spans cut(std::u16string_view text, const Ends& ends) {
    Spans spans;
    std::size_t start = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (place + 1 == text.size() || ends(place)) {
            spans.push_back({start, place + 1 - start});
            start = place + 1;
        }
    }
    return spans;
}

Spans linesOf(std::u16string_view text) {
    return cut(text, [text](std::size_t place) {
        return text[place] == TextStory::paragraphMark || text[place] == TextStory::lineBreak;
    });
}

Spans sentencesOf(std::u16string_view text) {
    bool closed = false;
    return cut(text, [text, &closed](std::size_t place) {
        if (!TextStory::isBlank(text[place])) {
            closed = closing.find(text[place]) != std::u16string_view::npos;
        }
        const bool blankHere = TextStory::isBlank(text[place]);
        const bool goesOn = TextStory::isBlank(text[place + 1]) || text[place + 1] == TextStory::paragraphMark;
        return text[place] == TextStory::paragraphMark || (closed && blankHere && !goesOn);
    });
}

Spans plainWordsOf(const TextStory& story) {
    Spans plain;
    for (const Span& word : story.words()) {
        const std::u16string_view text = std::u16string_view(story.text()).substr(word.start, word.length);
        const auto isMark = [&](std::size_t place) {
            return punctuation.find(text[place]) != std::u16string_view::npos;
        };
        for (const Span& part : cut(text, [&](std::size_t place) {
                 return !TextStory::isBlank(text[place + 1]) && isMark(place) != isMark(place + 1);
             })) {
            plain.push_back({word.start + part.start, part.length});
        }
    }
    return plain;
}

Spans runsOf(const TextStory& story) {
    Spans spans;
    std::size_t start = 0;
    for (const TextStory::Run& run : story.runs()) {
        spans.push_back({start, run.length});
        start += run.length;
    }
    return spans;
}

/// Those of a story's units that a range touches: all of them, without a search, where it is the whole text, of which
/// words are asked for most.
std::span<const Span> touching(const TextStory& story, Span range, const Spans& units) {
    if (range.start == 0 && range.end() == story.text().size()) {
        return units;
    }
    const auto first = std::upper_bound(units.begin(), units.end(), range.start,
                                        [](std::size_t place, const Span& unit) { return place < unit.end(); });
    const auto last = std::lower_bound(first, units.end(), range.end(),
                                       [](const Span& unit, std::size_t place) { return unit.start < place; });
    return {first, last};
}

/// What a story is cut into: its own list where it keeps one, else one in `made`. A range is one unit of its own.
const Spans& unitsOf(const TextStory& story, Span range, TextUnit unit, Spans& made) {
    switch (unit) {
    case TextUnit::Word: return story.words();
    case TextUnit::PlainWord: return made = plainWordsOf(story);
    case TextUnit::Paragraph: return story.paragraphs();
    case TextUnit::Sentence: return made = sentencesOf(story.text());
    case TextUnit::Line: return made = linesOf(story.text());
    case TextUnit::Run: return made = runsOf(story);
    case TextUnit::Range:
    case TextUnit::Character: break;
    }
    return made = {range};
}

} // namespace

std::size_t countUnits(const TextStory& story, Span range, TextUnit unit) {
    if (unit == TextUnit::Character || range.length == 0) {
        return range.length;
    }
    Spans made;
    return touching(story, range, unitsOf(story, range, unit, made)).size();
}

Span spanOfUnits(const TextStory& story, Span range, TextUnit unit, std::size_t first, std::size_t count) {
    if (unit == TextUnit::Character) {
        const std::size_t skipped = std::min(first, range.length == 0 ? 0 : range.length - 1);
        return {range.start + skipped, std::min(count, range.length - skipped)};
    }
    Spans made;
    const std::span<const Span> units = touching(story, range, unitsOf(story, range, unit, made));
    if (units.empty() || range.length == 0) {
        return {range.end(), 0};
    }
    const std::size_t found = std::min(first, units.size() - 1);
    const std::size_t start = std::max(units[found].start, range.start);
    if (count == 0) {
        return {start, 0};
    }
    const std::size_t last = found + std::min(count, units.size() - found) - 1;
    return {start, std::min(units[last].end(), range.end()) - start};
}

} // namespace simulator
