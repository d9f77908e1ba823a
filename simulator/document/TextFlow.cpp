#include "simulator/document/TextFlow.h"

#include "simulator/document/Advance.h"

#include <algorithm>

namespace simulator {

namespace {

constexpr float heightOfRow = 1.2F;  ///< of the font size
constexpr float ascentOfRow = 0.95F; ///< of the font size
constexpr float indentStep = 27;

/// Takes characters one by one and puts them into rows.
class Breaker {
public:
    Breaker(const TextStory& story, float room, float scale) : story_(story), room_(room), scale_(scale) {}

    TextFlow broken() {
        const std::u16string& text = story_.text();
        startRow(true);
        for (std::size_t place = 0; place < text.size(); ++place) {
            if (text[place] == TextStory::paragraphMark || text[place] == TextStory::lineBreak) {
                endRow(place);
                paragraph_ += text[place] == TextStory::paragraphMark ? 1U : 0U;
                start_ = place + 1;
                startRow(text[place] == TextStory::paragraphMark);
            } else {
                add(place);
            }
        }
        endRow(text.size());
        return std::move(flow_);
    }

private:
    void startRow(bool isFirst) {
        width_ = 0;
        lastBlank_ = start_;
        isFirst_ = isFirst;
    }

    void add(std::size_t place) {
        const bool isBlank = TextStory::isBlank(story_.text()[place]);
        const float advance = advanceOf(story_.text()[place], formatAt(place));
        const float room = room_ - indentOf(story_.paragraphFormats().at(paragraph_));
        if (story_.layout.wordWrap && !isBlank && width_ + advance > room && lastBlank_ > start_) {
            breakAt(lastBlank_);
            for (std::size_t i = start_; i < place; ++i) {
                width_ += advanceOf(story_.text()[i], formatAt(i));
            }
        }
        width_ += advance;
        if (isBlank) {
            lastBlank_ = place + 1;
        }
    }

    void breakAt(std::size_t place) {
        endRow(place);
        start_ = place;
        startRow(false);
    }

    void endRow(std::size_t end) {
        const ParagraphFormat& format = story_.paragraphFormats().at(paragraph_);
        TextRow row;
        row.span = {start_, end - start_};
        row.paragraph = paragraph_;
        row.isFirst = isFirst_;
        row.pieces = piecesOf(end);
        float largest = formatAt(start_).size;
        for (const TextPiece& piece : row.pieces) {
            largest = std::max(largest, piece.format.size);
            for (std::size_t i = piece.span.start; i < piece.span.end(); ++i) {
                row.width += advanceOf(story_.text()[i], piece.format);
            }
        }
        const float within = std::max(format.spaceWithin, 0.5F);
        const float before = isFirst_ && start_ != 0 ? format.spaceBefore * largest : 0;
        row.ascent = before + largest * ascentOfRow * within;
        row.height = before + largest * heightOfRow * within;
        flow_.width = std::max(flow_.width, row.width + indentOf(format));
        flow_.height += row.height;
        flow_.rows.push_back(std::move(row));
    }

    /// The row's characters without the blanks at its end, cut where the format changes.
    [[nodiscard]] std::vector<TextPiece> piecesOf(std::size_t end) const {
        while (end > start_ && story_.text()[end - 1] == u' ') {
            --end;
        }
        std::vector<TextPiece> pieces;
        for (std::size_t place = start_; place < end; ++place) {
            CharacterFormat format = formatAt(place);
            if (pieces.empty() || (pieces.back().format != format && !isSecondHalf(place))) {
                pieces.push_back({{place, 0}, std::move(format)});
            }
            ++pieces.back().span.length;
        }
        return pieces;
    }

    /// True within a character of two UTF-16 units, which looks as its first one says.
    [[nodiscard]] bool isSecondHalf(std::size_t place) const {
        const auto isWithin = [](char16_t unit, char16_t first, char16_t last) {
            return unit >= first && unit <= last;
        };
        const std::u16string& text = story_.text();
        return place != 0 && isWithin(text[place - 1], 0xD800, 0xDBFF) && isWithin(text[place], 0xDC00, 0xDFFF);
    }

    [[nodiscard]] CharacterFormat formatAt(std::size_t place) const {
        CharacterFormat format = story_.formatAt(place);
        format.size *= scale_;
        return format;
    }

    const TextStory& story_;
    float room_;
    float scale_;
    TextFlow flow_;
    std::size_t start_ = 0;
    std::size_t lastBlank_ = 0; ///< where the row can be broken
    std::size_t paragraph_ = 0;
    float width_ = 0;
    bool isFirst_ = true;
};

} // namespace

float indentOf(const ParagraphFormat& format) noexcept {
    const auto levels = static_cast<float>(format.indentLevel - (format.bullet == ppBulletNone ? 1 : 0));
    return std::max(levels, 0.0F) * indentStep;
}

float widthOf(const TextStory& story, Span characters) {
    float width = 0;
    for (std::size_t place = characters.start; place < characters.end(); ++place) {
        width += advanceOf(story.text()[place], story.formatAt(place));
    }
    return width;
}

TextFlow flow(const TextStory& story, float room, float scale) {
    return Breaker(story, room, scale).broken();
}

} // namespace simulator
