#include "automation/Text.h"
#include "simulator/document/TextStory.h"
#include "tests/support/Chance.h"

#include <gtest/gtest.h>

namespace simulator::text_story_tests {

using Texts = std::vector<std::u16string>;

TextStory storyOf(std::u16string_view text) {
    TextStory story;
    story.replace({}, text);
    return story;
}

Texts pieces(const TextStory& story, const std::vector<Span>& spans) {
    Texts texts;
    for (const Span& span : spans) {
        texts.push_back(story.text().substr(span.start, span.length));
    }
    return texts;
}

/// Gives a span a size by which its characters can be told from others.
void mark(TextStory& story, Span span, char digit) {
    story.format(span, [digit](CharacterFormat& format) { format.size = static_cast<float>(digit - '0'); });
}

/// One digit a character: the size that it was marked with.
std::string marks(const TextStory& story) {
    std::string digits;
    for (const TextStory::Run& run : story.runs()) {
        digits.append(run.length, static_cast<char>('0' + static_cast<int>(run.format.size)));
    }
    return digits;
}

std::string levels(const TextStory& story) {
    std::string digits;
    for (const ParagraphFormat& format : story.paragraphFormats()) {
        digits += static_cast<char>('0' + format.indentLevel);
    }
    return digits;
}

TEST(TextStory, KeepsParagraphFormatsWithTheirParagraphs) {
    struct Case {
        Span span;
        std::u16string_view with;
        std::string levels;
    };
    const std::vector<Case> cases{
        {{1, 1}, u"", "134"},
        {{3, 0}, u"x\ry\rz", "122234"},
        {{1, 3}, u"-", "14"},
        {{0, 9}, u"p\rq", "14"},
        {{7, 0}, u"\r", "12344"},
        {{3, 1}, u"\r", "1234"},
        {{1, 0}, u"\u010D\u0D0D\r", "11234"}, // two that have a mark's byte, and a mark
    };
    for (const Case& test : cases) {
        TextStory story = storyOf(u"a\rb\rc\rd");
        for (std::size_t i = 0; i < 4; ++i) {
            story.formatParagraphs({2 * i, 1},
                                   [i](ParagraphFormat& format) { format.indentLevel = static_cast<int>(i) + 1; });
        }
        ASSERT_EQ(levels(story), "1234");
        story.replace(test.span, test.with);
        EXPECT_EQ(levels(story), test.levels) << automation::toUtf8(story.text());
    }
}

TEST(TextStory, RefusesPartsThatDoNotFitTogether) {
    const std::vector<ParagraphFormat> two(2);
    EXPECT_EQ(TextStory(u"a\rb", {{1, {}}, {2, {}}}, two), storyOf(u"a\rb"));
    EXPECT_THROW(TextStory(u"a\rb", {{2, {}}}, two), std::invalid_argument);
    EXPECT_THROW(TextStory(u"a\rb", {{4, {}}}, two), std::invalid_argument);
    EXPECT_THROW(TextStory(u"a\rb", {{3, {}}}, {ParagraphFormat()}), std::invalid_argument);
    EXPECT_THROW(TextStory(u"", {}, {ParagraphFormat()}), std::invalid_argument);
}

/// A story as plain lists, one entry a character: slow and obvious.
struct PlainStory {
    std::u16string text;
    std::string marks;

    void replace(Span span, const std::u16string& with) {
        const char fallback = marks.empty() ? '1' : marks.front();
        const char taken = span.length > 0 ? marks[span.start] : span.start > 0 ? marks[span.start - 1] : fallback;
        text.replace(span.start, span.length, with);
        marks.replace(span.start, span.length, with.size(), taken);
    }
    [[nodiscard]] Texts words() const {
        Texts found;
        bool open = false;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const bool blankBefore = i > 0 && TextStory::isBlank(text[i - 1]);
            open = open && text[i] != u'\r' && !(blankBefore && !TextStory::isBlank(text[i]));
            if (text[i] != u'\r') {
                open ? void(found.back() += text[i]) : found.push_back({text[i]});
                open = true;
            }
        }
        return found;
    }
};

TEST(TextStory, AgreesWithAPlainListThroughManyEdits) {
    tests::Chance chance;
    const auto below = [&chance](std::size_t limit) { return chance.below(limit); };
    const Texts additions{u"", u"x", u"deux mots", u"fin\r", u"  ", u"\r\r", u"\v"};
    TextStory story;
    mark(story, {}, '1');
    PlainStory plain;
    std::size_t longest = 0;
    for (int i = 0; i < 3000; ++i) {
        const std::size_t start = below(plain.text.size() + 1);
        const Span span{start, std::min(below(8), plain.text.size() - start)};
        if (below(3) == 0) {
            const char digit = static_cast<char>('1' + below(3));
            if (span.length > 0) {
                mark(story, span, digit);
                plain.marks.replace(span.start, span.length, span.length, digit);
            }
        } else if (!plain.text.empty() || plain.marks.empty()) {
            const std::u16string& with = additions[below(additions.size())];
            const bool empties = plain.text.size() == span.length && with.empty();
            if (!empties) {
                story.replace(span, with);
                plain.replace(span, with);
            }
        }
        longest = std::max(longest, plain.text.size());
        ASSERT_EQ(story.text(), plain.text);
        ASSERT_EQ(marks(story), plain.marks);
        ASSERT_EQ(pieces(story, story.words()), plain.words());
        ASSERT_EQ(story.paragraphFormats().size(),
                  1U + static_cast<std::size_t>(std::count(plain.text.begin(), plain.text.end(), u'\r')));
    }
    EXPECT_GT(longest, 40U);
}

} // namespace simulator::text_story_tests
