#include "simulator/picture/TextPicture.h"

#include "automation/Text.h"
#include "simulator/document/TextFlow.h"

#include <algorithm>
#include <array>

namespace simulator::picture {

namespace {

using automation::toUtf8;

constexpr float bulletStep = 27;

/// The font with one of its kind behind it; nothing for the font of the whole picture.
std::string familyOf(const std::u16string& name) {
    if (automation::equalIgnoringCase(name, u"Arial")) {
        return {};
    }
    const bool isRoman = name.starts_with(u"Times") || name.starts_with(u"Garamond") || name.starts_with(u"Georgia");
    return toUtf8(name) + (isRoman ? ", serif" : name.starts_with(u"Courier") ? ", monospace" : ", sans-serif");
}

void addFont(Markup::Attributes& attributes, const std::u16string& name, bool bold, bool italic) {
    if (std::string family = familyOf(name); !family.empty()) {
        attributes.emplace_back("font-family", std::move(family));
    }
    if (bold) {
        attributes.emplace_back("font-weight", "bold");
    }
    if (italic) {
        attributes.emplace_back("font-style", "italic");
    }
}

Markup::Attributes looksOf(const CharacterFormat& format, const Paint& paint) {
    Markup::Attributes attributes{{"font-size", number(format.size)}, {"fill", paint.color(format.color)}};
    addFont(attributes, format.fontName, format.bold, format.italic);
    if (format.underline) {
        attributes.emplace_back("text-decoration", "underline");
    }
    return attributes;
}

/// The text of a shape in the room that its margins leave.
class TextBlock {
public:
    TextBlock(const Shape& shape, const Frame& frame, const Paint& paint, Markup& out)
        : story_(*shape.text), paint_(paint),
          out_(out), room_{frame.left + story_.layout.marginLeft, frame.top + story_.layout.marginTop,
                           std::max(frame.width - story_.layout.marginLeft - story_.layout.marginRight, 1.0F),
                           std::max(frame.height - story_.layout.marginTop - story_.layout.marginBottom, 1.0F)},
          flow_(flow(story_, room_.width)) {
        if (shape.type == msoPlaceholder) {
            shrink();
        }
        if (story_.layout.centered) {
            room_.left += (room_.width - flow_.width) / 2;
            room_.width = flow_.width;
        }
    }

    void draw() {
        float top = room_.top + (room_.height - flow_.height) * shareAbove(story_.layout.anchor);
        int count = 0;
        for (const TextRow& row : flow_.rows) {
            const ParagraphFormat& format = story_.paragraphFormats().at(row.paragraph);
            if (row.isFirst) {
                count = format.bullet == ppBulletNumbered ? count + 1 : 0;
            }
            if (!row.pieces.empty()) {
                drawBullet(row, format, count, top + row.ascent);
                drawRow(row, format, top + row.ascent);
            }
            top += row.height;
        }
    }

private:
    void shrink() {
        constexpr std::array<float, 6> scales{0.9F, 0.8F, 0.7F, 0.6F, 0.5F, 0.4F};
        for (const float scale : scales) {
            if (flow_.height <= room_.height) {
                return;
            }
            flow_ = flow(story_, room_.width, scale);
        }
    }

    void drawBullet(const TextRow& row, const ParagraphFormat& format, int count, float baseline) {
        if (!row.isFirst || format.bullet == ppBulletNone) {
            return;
        }
        Markup::Attributes attributes{{"x", number(room_.left + indentOf(format) - bulletStep)},
                                      {"y", number(baseline)}};
        for (auto& look : looksOf(row.pieces.front().format, paint_)) {
            attributes.push_back(std::move(look));
        }
        const auto sign = static_cast<char16_t>(format.bulletCharacter > u' ' ? format.bulletCharacter : 0x2022);
        out_.leaf("text", attributes, count > 0 ? std::to_string(count) + "." : toUtf8(std::u16string(1, sign)));
    }

    void drawRow(const TextRow& row, const ParagraphFormat& format, float baseline) {
        const float left = room_.left + indentOf(format);
        const float width = room_.width - indentOf(format);
        const bool isCentered = format.alignment == ppAlignCenter;
        const bool isRight = format.alignment == ppAlignRight;
        Markup::Attributes attributes{{"x", number(left + (isCentered ? width / 2
                                                           : isRight  ? width
                                                                      : 0))},
                                      {"y", number(baseline)}};
        constexpr float nearlyFull = 0.7F;
        if (story_.layout.wordWrap && row.width > width * nearlyFull) {
            // Whatever font stands in for the one named: the row was measured to fit.
            attributes.emplace_back("textLength", number(row.width));
            attributes.emplace_back("lengthAdjust", "spacingAndGlyphs");
        }
        if (isCentered || isRight) {
            attributes.emplace_back("text-anchor", isCentered ? "middle" : "end");
        }
        for (auto& look : looksOf(row.pieces.front().format, paint_)) {
            attributes.push_back(std::move(look));
        }
        if (const std::string all = textOf(row); all.starts_with(' ') || all.find("  ") != std::string::npos) {
            attributes.emplace_back("xml:space", "preserve");
        }
        const Markup::Element element = out_.element("text", attributes);
        out_.text(textOf(row.pieces.front()));
        for (std::size_t i = 1; i < row.pieces.size(); ++i) {
            out_.leaf("tspan", differenceOf(row.pieces[i].format, row.pieces.front().format), textOf(row.pieces[i]));
        }
    }

    /// How a piece looks beside the first of its row, whose looks it would take.
    [[nodiscard]] Markup::Attributes differenceOf(const CharacterFormat& format, const CharacterFormat& first) const {
        Markup::Attributes attributes;
        if (format.size != first.size) {
            attributes.emplace_back("font-size", number(format.size));
        }
        if (format.color != first.color) {
            attributes.emplace_back("fill", paint_.color(format.color));
        }
        if (format.fontName != first.fontName) {
            const std::string family = familyOf(format.fontName);
            attributes.emplace_back("font-family", family.empty() ? "Arial, sans-serif" : family);
        }
        if (format.bold != first.bold) {
            attributes.emplace_back("font-weight", format.bold ? "bold" : "normal");
        }
        if (format.italic != first.italic) {
            attributes.emplace_back("font-style", format.italic ? "italic" : "normal");
        }
        if (format.underline && !first.underline) {
            attributes.emplace_back("text-decoration", "underline");
        }
        return attributes;
    }

    [[nodiscard]] std::string textOf(const TextPiece& piece) const {
        std::u16string text = story_.text().substr(piece.span.start, piece.span.length);
        std::replace(text.begin(), text.end(), u'\t', u' ');
        return toUtf8(text);
    }
    [[nodiscard]] std::string textOf(const TextRow& row) const {
        std::string all;
        for (const TextPiece& piece : row.pieces) {
            all += textOf(piece);
        }
        return all;
    }

    const TextStory& story_;
    const Paint& paint_;
    Markup& out_;
    Frame room_;
    TextFlow flow_;
};

/// A frame with its sides exchanged around its middle.
Frame turned(const Frame& frame) {
    return {frame.left + (frame.width - frame.height) / 2, frame.top + (frame.height - frame.width) / 2, frame.height,
            frame.width};
}

} // namespace

void drawText(const Shape& shape, const Paint& paint, Markup& out) {
    if (!shape.text || shape.text->text().empty()) {
        return;
    }
    const Frame& frame = shape.frame();
    const MsoTextOrientation orientation = shape.text->layout.orientation;
    if (!isUpright(orientation)) {
        TextBlock(shape, frame, paint, out).draw();
        return;
    }
    const std::string angle = orientation == msoTextOrientationUpward ? "-90 " : "90 ";
    const Markup::Element turn =
        out.element("g", {{"transform", "rotate(" + angle + number(frame.left + frame.width / 2) + " " +
                                            number(frame.top + frame.height / 2) + ")"}});
    TextBlock(shape, turned(frame), paint, out).draw();
}

void drawWordArt(const Shape& shape, const Markup::Attributes& colors, Markup& out) {
    constexpr float inkHeight = 0.95F; ///< of the font size, from the ascenders to the descenders
    constexpr float inkAscent = 0.75F;
    const TextEffect& effect = *shape.textEffect;
    const Frame& frame = shape.frame();
    const auto lines = static_cast<float>(1 + std::count_if(effect.text.begin(), effect.text.end(), [](char16_t c) {
                                              return c == u'\r' || c == u'\n' || c == u'\v';
                                          }));
    const float height = frame.height / lines;
    float top = frame.top;
    for (std::size_t start = 0; start <= effect.text.size(); top += height) {
        const std::size_t end = std::min(effect.text.find_first_of(u"\r\n\v", start), effect.text.size());
        Markup::Attributes attributes{{"x", number(frame.left)},
                                      {"y", number(top + height * inkAscent / inkHeight)},
                                      {"font-size", number(height / inkHeight)},
                                      {"textLength", number(std::max(frame.width, 1.0F))},
                                      {"lengthAdjust", "spacingAndGlyphs"}};
        addFont(attributes, effect.fontName, effect.bold, effect.italic);
        attributes.insert(attributes.end(), colors.begin(), colors.end());
        out.leaf("text", attributes, toUtf8(effect.text.substr(start, end - start)));
        start = end + 1;
    }
}

} // namespace simulator::picture
