#include "simulator/document/TextStory.h"

#include "simulator/document/ParagraphMarks.h"

#include <algorithm>
#include <stdexcept>

namespace simulator {

namespace {

std::u16string withParagraphMarks(std::u16string_view text) {
    std::u16string result;
    result.reserve(text.size());
    for (std::size_t place = 0; place < text.size(); ++place) {
        const bool afterMark = place > 0 && text[place - 1] == TextStory::paragraphMark;
        if (text[place] != u'\n') {
            result += text[place];
        } else if (!afterMark) {
            result += TextStory::lineBreak;
        }
    }
    return result;
}

std::size_t marksIn(std::u16string_view text) {
    std::size_t count = 0;
    for (std::size_t place = findParagraphMark(text, 0); place != std::u16string_view::npos;
         place = findParagraphMark(text, place + 1)) {
        ++count;
    }
    return count;
}

template <typename T> auto iteratorAt(std::vector<T>& items, std::size_t place) {
    return items.begin() + static_cast<std::ptrdiff_t>(place);
}

} // namespace

TextStory::TextStory(std::u16string text, std::vector<Run> runs, std::vector<ParagraphFormat> paragraphFormats)
    : text_(std::move(text)), runs_(std::move(runs)), paragraphFormats_(std::move(paragraphFormats)) {
    std::size_t covered = 0;
    for (const Run& run : runs_) {
        if (run.length > text_.size() - covered) {
            throw std::invalid_argument("the runs of a text are longer than the text");
        }
        covered += run.length;
    }
    if (runs_.empty() || covered != text_.size()) {
        throw std::invalid_argument("the runs of a text are shorter than the text");
    }
    if (paragraphFormats_.size() != marksIn(text_) + 1) {
        throw std::invalid_argument("a text has more or fewer paragraphs than formats for them");
    }
    join();
}

Span TextStory::replace(Span span, std::u16string_view text) {
    const Span old = clipped(span);
    const CharacterFormat taken = formatAt(old.length == 0 && old.start > 0 ? old.start - 1 : old.start);
    return replace(old, text, taken);
}

Span TextStory::replace(Span span, std::u16string_view text, const CharacterFormat& format) {
    const Span old = clipped(span);
    const std::u16string fresh = withParagraphMarks(text);
    Run run{fresh.size(), format};
    anchors_.follow(old, fresh.size(), [this](std::size_t place) { return formatAt(place); });
    replaceParagraphFormats(old, fresh);
    if (text_.empty()) {
        runs_.clear();
    }
    const std::size_t first = splitAt(old.start);
    const std::size_t last = splitAt(old.end());
    const auto rest = runs_.erase(iteratorAt(runs_, first), iteratorAt(runs_, last));
    runs_.insert(rest, std::move(run));
    text_.replace(old.start, old.length, fresh);
    join();
    indexed_ = false;
    return {old.start, fresh.size()};
}

Span TextStory::replaceWith(const TextStory& other, Span span) {
    const Span fresh = replace(span, other.text());
    std::size_t place = fresh.start;
    for (const Run& run : other.runs()) {
        format({place, run.length}, [&run](CharacterFormat& format) { format = run.format; });
        place += run.length;
    }
    return fresh;
}

TextStory TextStory::excerpt(Span span) const {
    const Span within = clipped(span);
    TextStory result;
    result.replace({}, text_.substr(within.start, within.length));
    for (std::size_t place = within.start; place < within.end(); ++place) {
        result.format({place - within.start, 1}, [&](CharacterFormat& format) { format = formatAt(place); });
    }
    return result;
}

std::span<const TextStory::Run> TextStory::runs(Span span) const noexcept {
    const Span within = clipped(span);
    std::size_t first = 0;
    std::size_t end = runs_[0].length;
    while (end <= within.start && first + 1 < runs_.size()) {
        end += runs_[++first].length;
    }
    std::size_t last = first;
    while (end < within.end()) {
        end += runs_[++last].length;
    }
    return std::span(runs_).subspan(first, last - first + 1);
}

const CharacterFormat& TextStory::formatAt(std::size_t place) const noexcept {
    return runs({place, 0}).front().format;
}

std::size_t TextStory::splitAt(std::size_t place) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < runs_.size(); ++i) {
        if (place == start) {
            return i;
        }
        if (place < start + runs_[i].length) {
            Run tail{start + runs_[i].length - place, runs_[i].format};
            runs_[i].length = place - start;
            runs_.insert(iteratorAt(runs_, i + 1), std::move(tail));
            return i + 1;
        }
        start += runs_[i].length;
    }
    return runs_.size();
}

std::span<TextStory::Run> TextStory::isolate(Span span) {
    if (text_.empty()) {
        return runs_;
    }
    const Span within = clipped(span);
    const std::size_t first = splitAt(within.start);
    const std::size_t last = splitAt(within.end());
    return std::span(runs_).subspan(first, last - first);
}

void TextStory::join() {
    std::size_t kept = 0;
    for (std::size_t i = 1; i < runs_.size(); ++i) {
        if (runs_[i].length == 0) {
            continue;
        }
        if (runs_[kept].length == 0 || runs_[kept].format == runs_[i].format) {
            runs_[i].length += runs_[kept].length;
            runs_[kept] = std::move(runs_[i]);
        } else if (++kept != i) {
            runs_[kept] = std::move(runs_[i]);
        }
    }
    runs_.resize(kept + 1);
}

std::span<const ParagraphFormat> TextStory::paragraphFormats(Span span) const noexcept {
    const Span touched = paragraphsTouchedBy(span);
    return std::span(paragraphFormats_).subspan(touched.start, touched.length);
}

Span TextStory::paragraphsTouchedBy(Span span) const noexcept {
    const Span within = clipped(span);
    const std::u16string_view text = text_;
    const std::u16string_view beforeLast = text.substr(within.start, within.length == 0 ? 0 : within.length - 1);
    return {marksIn(text.substr(0, within.start)), marksIn(beforeLast) + 1};
}

void TextStory::replaceParagraphFormats(Span span, std::u16string_view text) {
    const std::u16string_view old = text_;
    const std::size_t place = marksIn(old.substr(0, span.start));
    const ParagraphFormat format = paragraphFormats_[place];
    const std::size_t removed = marksIn(old.substr(span.start, span.length));
    const std::size_t added = marksIn(text);
    const auto kept = std::min<std::size_t>({removed, added, 1}); // the paragraph that follows the last mark
    const auto next = iteratorAt(paragraphFormats_, place + 1);
    const auto rest = paragraphFormats_.erase(next, next + static_cast<std::ptrdiff_t>(removed - kept));
    paragraphFormats_.insert(rest, added - kept, format);
}

const std::vector<Span>& TextStory::words() const {
    index();
    return words_;
}

const std::vector<Span>& TextStory::paragraphs() const {
    index();
    return paragraphs_;
}

void TextStory::index() const {
    if (indexed_) {
        return;
    }
    words_.clear();
    paragraphs_.clear();
    std::size_t word = 0;
    std::size_t paragraph = 0;
    const auto close = [](std::vector<Span>& spans, std::size_t& start, std::size_t end) {
        if (end > start) {
            spans.push_back({start, end - start});
            start = end;
        }
    };
    for (std::size_t place = 0; place < text_.size(); ++place) {
        if (text_[place] == paragraphMark) {
            close(words_, word, place);
            close(paragraphs_, paragraph, place + 1);
            word = place + 1;
        } else if (place > word && isBlank(text_[place - 1]) && !isBlank(text_[place])) {
            close(words_, word, place);
        }
    }
    close(words_, word, text_.size());
    close(paragraphs_, paragraph, text_.size());
    indexed_ = true;
}

} // namespace simulator
