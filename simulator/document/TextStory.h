#pragma once

#include "simulator/document/TextAnchors.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace simulator {

/// The text of a shape: characters and paragraphs with their formats, and how they stand in the shape. Paragraphs end
/// with U+000D (the last one without), line breaks are U+000B. Spans that reach past the end are cut there.
class TextStory {
public:
    static constexpr char16_t paragraphMark = u'\r';
    static constexpr char16_t lineBreak = u'\v';

    /// A run of characters that look alike.
    struct Run {
        std::size_t length = 0;
        CharacterFormat format;

        friend bool operator==(const Run&, const Run&) = default;
    };

    TextStory() = default;
    /// A story from its parts, as a file holds them. Raises std::invalid_argument where the runs do not add up to the
    /// text, or the paragraph formats are not one more than the paragraph marks.
    TextStory(std::u16string text, std::vector<Run> runs, std::vector<ParagraphFormat> paragraphFormats);

    TextLayout layout;

    [[nodiscard]] const std::u16string& text() const noexcept { return text_; }
    /// At least one run; that of an empty story is empty and holds the format of the text to come.
    [[nodiscard]] const std::vector<Run>& runs() const noexcept { return runs_; }
    /// One format for each paragraph mark, and one for what follows the last.
    [[nodiscard]] const std::vector<ParagraphFormat>& paragraphFormats() const noexcept { return paragraphFormats_; }

    /// The part of a span that holds text of this story; an empty one at the end where there is none.
    [[nodiscard]] Span clipped(Span span) const noexcept {
        const std::size_t start = std::min(span.start, text_.size());
        return {start, std::min(span.length, text_.size() - start)};
    }

    /// Puts text in the place of a span; it takes the format of the first character replaced, or of the one before an
    /// empty span (after it at the very start). "\r\n" becomes a paragraph mark, "\n" alone a line break; new
    /// paragraphs take the format of the one in which the span starts; what follows the span keeps its own where it
    /// stays a paragraph apart. Returns where the text now stands.
    Span replace(Span span, std::u16string_view text);
    /// The same with the text of another story, whose characters keep their formats.
    Span replaceWith(const TextStory& other, Span span);
    /// The text of a span, its characters with their formats.
    [[nodiscard]] TextStory excerpt(Span span) const;
    /// The same, in a given format.
    Span replace(Span span, std::u16string_view text, const CharacterFormat& format);

    /// Writes `change(character)` over each character of a span; all keep their formats. Paragraph marks must stay.
    template <typename Change> void transform(Span span, const Change& change) {
        const Span within = clipped(span);
        for (std::size_t place = within.start; place < within.end(); ++place) {
            const char16_t changed = change(text_[place]);
            assert((changed == paragraphMark) == (text_[place] == paragraphMark));
            text_[place] = changed;
        }
        indexed_ = false;
    }

    /// Goes on looking at the characters of a span while the text changes.
    [[nodiscard]] std::shared_ptr<TextAnchor> anchor(Span span) {
        const Span within = clipped(span);
        return anchors_.add(within, formatAt(within.start));
    }

    /// The runs that a span touches, at least one.
    [[nodiscard]] std::span<const Run> runs(Span span) const noexcept;
    /// The format of the character at a place; past the end, of the last character.
    [[nodiscard]] const CharacterFormat& formatAt(std::size_t place) const noexcept;
    /// Changes the format of every character of a span (of the text to come in an empty story): `change` is given each
    /// run's format to modify.
    template <typename Change> void format(Span span, const Change& change) {
        for (Run& run : isolate(span)) {
            change(run.format);
        }
        join();
    }

    /// The formats of the paragraphs that a span touches, at least one.
    [[nodiscard]] std::span<const ParagraphFormat> paragraphFormats(Span span) const noexcept;
    /// Changes the format of every paragraph that a span touches.
    template <typename Change> void formatParagraphs(Span span, const Change& change) {
        const Span touched = paragraphsTouchedBy(span);
        for (std::size_t place = touched.start; place < touched.end(); ++place) {
            change(paragraphFormats_[place]);
        }
    }

    /// True for the characters that separate words: blank, no-break space and tab.
    [[nodiscard]] static constexpr bool isBlank(char16_t character) noexcept {
        return character == u' ' || character == u'\u00A0' || character == u'\t';
    }
    /// Words of the story, in order: each with its trailing blanks; a paragraph mark ends a word and is no part of it;
    /// punctuation and line breaks stay with the word; blanks at the start of a paragraph are a word of their own.
    /// Kept until the text changes.
    [[nodiscard]] const std::vector<Span>& words() const;
    /// Paragraphs of the story, each with its mark; the last one without. What follows the last mark is a paragraph
    /// only where it holds characters. Kept until the text changes.
    [[nodiscard]] const std::vector<Span>& paragraphs() const;

    /// Same text, same formats, same layout.
    friend bool operator==(const TextStory& left, const TextStory& right) {
        return left.text_ == right.text_ && left.runs_ == right.runs_ &&
               left.paragraphFormats_ == right.paragraphFormats_ && left.layout == right.layout;
    }

private:
    /// Place of the run that starts at a character, split off there where it has to be.
    std::size_t splitAt(std::size_t place);
    /// The runs that cover a span exactly, split off where they reach past it.
    [[nodiscard]] std::span<Run> isolate(Span span);
    /// Joins neighbouring runs that look alike.
    void join();
    [[nodiscard]] Span paragraphsTouchedBy(Span span) const noexcept;
    void replaceParagraphFormats(Span span, std::u16string_view text);
    void index() const;

    std::u16string text_;
    TextAnchors anchors_;
    std::vector<Run> runs_{Run()};
    std::vector<ParagraphFormat> paragraphFormats_{ParagraphFormat()};
    mutable std::vector<Span> words_;
    mutable std::vector<Span> paragraphs_;
    mutable bool indexed_ = false;
};

} // namespace simulator
