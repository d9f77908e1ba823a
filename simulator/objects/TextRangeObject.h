#pragma once

#include "simulator/document/TextUnits.h"
#include "simulator/objects/FontObject.h"
#include "simulator/objects/ParagraphFormatObject.h"

namespace simulator {

/// TextRange: a stretch of a shape's text. It keeps its place while the text around it changes; what is written through
/// it moves its own end. Members raise `errors::gone` where the shape is gone.
class TextRangeObject final : public PowerPointObject {
public:
    using Pointer = std::shared_ptr<TextRangeObject>;

    /// `unit` is what the range was asked as, and what it counts.
    TextRangeObject(ProcessPtr process, TextPart part, TextUnit unit = TextUnit::Range)
        : PowerPointObject(std::move(process)), part_(std::move(part)), unit_(unit) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    /// Stands until the text changes.
    [[nodiscard]] std::u16string_view text() const;
    /// The new text takes the format of the first character replaced.
    void setText(const std::u16string& text);
    /// Place of the first character in the shape's text, from 1.
    [[nodiscard]] std::int32_t start() const;
    [[nodiscard]] std::int32_t length() const;
    /// Number of the units that the range was asked as; 1 for a range asked as none.
    [[nodiscard]] std::int32_t count() const;
    /// One of them, by its place from 1.
    [[nodiscard]] Pointer item(std::int32_t index) const;
    [[nodiscard]] std::shared_ptr<automation::Elements> elements() { return elementsBy(u"_Index"); }

    /// Units `start` (from 1) to `start + length - 1` of the range. Both left out (or -1): the whole range; one left
    /// out: from the first, or one unit. A start past the last unit stands for the last. Raises an invalid request
    /// for a start below 1 or a length below 0.
    template <TextUnit unit>
    [[nodiscard]] Pointer units(std::optional<std::int32_t> start, std::optional<std::int32_t> length) const {
        return unitsFrom(unit, start.value_or(leftOut), length.value_or(leftOut));
    }
    /// The range without the blanks at its end.
    [[nodiscard]] Pointer trimText() const;

    [[nodiscard]] std::shared_ptr<FontObject> font() const;
    [[nodiscard]] std::shared_ptr<ParagraphFormatObject> paragraphFormat() const;
    /// 1 to 5; -2 where the paragraphs differ.
    [[nodiscard]] std::int32_t indentLevel() const;
    /// Raises an invalid request outside 1 to 5.
    void setIndentLevel(std::int32_t level);

    /// Adds text in the format of the last character; gives the text added, which belongs to this range too.
    Pointer insertAfter(const std::optional<std::u16string>& text);
    /// Adds text in the format of the first character; gives the text added, which belongs to this range too.
    Pointer insertBefore(const std::optional<std::u16string>& text);
    void remove();
    /// Gives sentences, words or letters of the range their case; formats stay.
    void changeCase(PpChangeCase change);

    /// The first place in the range, after its first `after` characters, where a text stands; nothing where it does
    /// not.
    [[nodiscard]] Pointer find(const std::u16string& what, std::optional<std::int32_t> after,
                               std::optional<MsoTriState> matchCase, std::optional<MsoTriState> wholeWords) const;
    /// Replaces the text that `find` finds, which leaves its format to the new one; gives the new text, or nothing.
    Pointer replace(const std::u16string& what, const std::u16string& by, std::optional<std::int32_t> after,
                    std::optional<MsoTriState> matchCase, std::optional<MsoTriState> wholeWords);

    /// Where the range stands on the slide, in points: estimated, since no font is measured here.
    template <float Frame::*side> [[nodiscard]] float bound() const { return bounds().*side; }

    /// Selects the range in the presentation's window. Raises an invalid request where the window does not show its
    /// slide.
    void select() const;
    /// Raises an invalid request for an empty range.
    void copy() const;
    void cut();
    /// Puts the text copied last in the place of the range. Raises an invalid request where no text was copied.
    Pointer paste();

    /// The text frame.
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    static constexpr std::int32_t leftOut = -1;

    [[nodiscard]] Pointer unitsFrom(TextUnit unit, std::int32_t start, std::int32_t length) const;
    [[nodiscard]] Frame bounds() const;
    [[nodiscard]] Pointer at(Span span, TextUnit unit = TextUnit::Range) const;

    TextPart part_;
    TextUnit unit_;
};

} // namespace simulator
