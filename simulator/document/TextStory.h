#pragma once

#include "simulator/document/Color.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

/// How a run of characters looks.
struct CharacterFormat {
    std::u16string fontName = u"Arial";
    float size = 18; ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    Color color = Color::of(ppForeground);

    friend bool operator==(const CharacterFormat&, const CharacterFormat&) = default;
};

/// A stretch of a story: characters from `start` (from 0).
struct Span {
    std::size_t start = 0;
    std::size_t length = 0;

    [[nodiscard]] std::size_t end() const noexcept { return start + length; }
    friend bool operator==(const Span&, const Span&) = default;
};

/// The text of a shape: characters with their formats. Paragraphs end with U+000D (the last one without), line breaks
/// are U+000B.
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

    [[nodiscard]] const std::u16string& text() const noexcept { return text_; }
    [[nodiscard]] const std::vector<Run>& runs() const noexcept { return runs_; }

    /// Puts text in the place of a span; it takes the format of the first character replaced, or of the one before an
    /// empty span. "\r\n" and "\n" become paragraph marks.
    void replace(Span span, std::u16string_view text);

    /// The format of the character at a place; of the empty story where there is none.
    [[nodiscard]] const CharacterFormat& formatAt(std::size_t place) const noexcept;
    /// Changes the format of every character of a span (of the text to come in an empty story): `change` is given each
    /// run's format to modify.
    template <typename Change> void format(Span span, const Change& change) {
        if (text_.empty()) {
            change(emptyFormat_);
            return;
        }
        for (Run& run : isolate(span)) {
            change(run.format);
        }
        join();
    }

    /// Words of the story, in order: each with its trailing blanks; a paragraph mark ends a word and is no part of it;
    /// punctuation and line breaks stay with the word. Kept until the text changes.
    [[nodiscard]] const std::vector<Span>& words() const;
    /// Paragraphs of the story, each with its mark; the last one without.
    [[nodiscard]] const std::vector<Span>& paragraphs() const;

    friend bool operator==(const TextStory& left, const TextStory& right) {
        return left.text_ == right.text_ && left.runs_ == right.runs_ && left.emptyFormat_ == right.emptyFormat_;
    }

private:
    struct RunRange {
        std::vector<Run>::iterator first;
        std::vector<Run>::iterator last;
        [[nodiscard]] auto begin() const { return first; }
        [[nodiscard]] auto end() const { return last; }
    };
    /// The runs that cover a span exactly, split off where they reach past it.
    [[nodiscard]] RunRange isolate(Span span);
    /// Joins neighbouring runs that look alike.
    void join();

    std::u16string text_;
    std::vector<Run> runs_;
    CharacterFormat emptyFormat_;
    mutable std::vector<Span> words_;
    mutable std::vector<Span> paragraphs_;
    mutable bool indexed_ = false;
};

} // namespace simulator
