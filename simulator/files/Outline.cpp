#include "simulator/files/Outline.h"

namespace simulator {

namespace {

constexpr int twipsPerLevel = 360;

std::string escaped(std::u16string_view text) {
    std::string out;
    for (const char16_t unit : text) {
        if (unit == TextStory::lineBreak) {
            out += "\\line ";
        } else if (unit == u'\t') {
            out += "\\tab ";
        } else if (unit == u'\\' || unit == u'{' || unit == u'}') {
            out += '\\';
            out += static_cast<char>(unit);
        } else if (unit >= 0x80) {
            out += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + "?";
        } else if (unit >= u' ') {
            out += static_cast<char>(unit);
        }
    }
    return out;
}

void appendParagraphs(std::string& out, const TextStory& story, bool title) {
    for (const Span& paragraph : story.paragraphs()) {
        std::u16string_view text = std::u16string_view(story.text()).substr(paragraph.start, paragraph.length);
        if (text.ends_with(TextStory::paragraphMark)) {
            text.remove_suffix(1);
        }
        const std::int32_t level = title ? 0 : story.paragraphFormats(paragraph).front().indentLevel;
        out += "\\pard\\li" + std::to_string(level * twipsPerLevel) + (title ? "\\b " : "\\b0 ") + escaped(text) +
               "\\par\n";
    }
}

} // namespace

std::string outlineAsRichText(const Presentation& presentation) {
    std::string out = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0 Arial;}}\n";
    for (const SlidePtr& slide : presentation.slides()) {
        for (const bool titles : {true, false}) {
            for (const ShapePtr& shape : slide->shapes()) {
                if (shape->placeholder && shape->text && isTitle(*shape->placeholder) == titles) {
                    appendParagraphs(out, *shape->text, titles);
                }
            }
        }
    }
    return out + "}\n";
}

} // namespace simulator
