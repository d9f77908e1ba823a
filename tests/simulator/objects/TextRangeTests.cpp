#include "automation/Text.h"
#include "simulator/files/FilePresentationStore.h"
#include "simulator/objects/TextFrameObject.h"
#include "simulator/system/EmbeddedMainWindow.h"
#include "tests/support/Errors.h"
#include "tests/support/Script.h"

#include <gtest/gtest.h>

namespace simulator {
namespace text_range_tests {

using automation::LateBound;
using automation::Value;
using tests::ask;
using tests::say;

constexpr std::int32_t red = 0x0000FF;
constexpr std::int32_t blue = 0xFF0000;

std::string utf8(const Value& value) {
    return automation::toUtf8(value.to<std::u16string>());
}

/// A presentation with one slide and one shape, whose text is reached as a macro reaches it.
class TextRange : public testing::Test {
protected:
    TextRange() {
        presentation->insert(slide, 0);
        shape->text.emplace();
        slide->add(shape, u"Rectangle");
        presentation->saved = true;
    }

    /// The whole text, put in anew.
    LateBound text(std::u16string_view content) {
        *shape->text = TextStory();
        shape->text->replace({}, content);
        return whole();
    }
    [[nodiscard]] LateBound whole() const { return LateBound(frame.get(u"TextRange").to<automation::ObjectPtr>()); }

    static void paint(const LateBound& range, std::int32_t rgb) { ask(ask(range, u"Font"), u"Color").put(u"RGB", rgb); }
    static std::int32_t colorOf(const LateBound& range) {
        return ask(ask(range, u"Font"), u"Color").get(u"RGB").to<std::int32_t>();
    }

    EmbeddedWindows windows;
    EmbeddedMainWindow window{windows, [] {}};
    FilePresentationStore store{[](std::u16string_view) { return std::filesystem::path(); }};
    Settings settings;
    SessionPtr session = std::make_shared<Session>(window, store, settings);
    PresentationPtr presentation = session->create(false);
    SlidePtr slide = std::make_shared<Slide>();
    ShapePtr shape = std::make_shared<Shape>();
    LateBound frame{std::make_shared<TextFrameObject>(session, shape)};
};

constexpr std::u16string_view advice = u"Il faut faire court.\rPolice lisible\rFaire,  bien faire !";

TEST_F(TextRange, GivesUnitsOfItself) {
    struct Case {
        std::u16string_view member;
        std::int32_t start;
        std::int32_t length;
        std::string text;
        std::int32_t count;
    };
    const std::vector<Case> cases{
        {u"Words", -1, -1, "Il faut faire court.\rPolice lisible\rFaire,  bien faire !", 10},
        {u"Words", 3, -1, "faire ", 1},
        {u"Words", 4, 2, "court.\rPolice ", 2},
        {u"Words", -1, 2, "Il faut ", 2},
        {u"Words", 9, 20, "faire !", 2},
        {u"Words", 11, -1, "", 0},
        {u"Words", 2, 0, "", 0},
        {u"Characters", 4, 4, "faut", 4},
        {u"Characters", 63, 5, "", 0},
        {u"Paragraphs", -1, -1, "Il faut faire court.\rPolice lisible\rFaire,  bien faire !", 3},
        {u"Paragraphs", 2, -1, "Police lisible\r", 1},
        {u"Paragraphs", 3, -1, "Faire,  bien faire !", 1},
        {u"Paragraphs", 4, -1, "", 0},
        {u"Lines", 2, 2, "Police lisible\rFaire,  bien faire !", 2},
        {u"Sentences", 1, -1, "Il faut faire court.\r", 1},
        {u"Runs", 1, -1, "Il faut faire court.\rPolice lisible\rFaire,  bien faire !", 1},
    };
    const LateBound all = text(advice);
    for (const Case& test : cases) {
        const LateBound part = ask(all, test.member, test.start, test.length);
        const std::string label = automation::toUtf8(test.member) + " " + std::to_string(test.start);
        EXPECT_EQ(utf8(part.get(u"Text")), test.text) << label;
        EXPECT_EQ(part.get(u"Count"), Value(test.count)) << label;
        EXPECT_EQ(part.get(u"Length"), Value(static_cast<std::int32_t>(test.text.size()))) << label;
    }
    EXPECT_EQ(all.get(u"Count"), Value(1));
    EXPECT_EQ(errorNumber([&] { say(all, u"Words", 0); }), requestRefused);
    EXPECT_EQ(errorNumber([&] { say(all, u"Words", 1, -2); }), requestRefused);
}

TEST_F(TextRange, CountsWithinPartsOfTheText) {
    const LateBound all = text(advice);
    const LateBound third = ask(all, u"Paragraphs", 3);
    EXPECT_EQ(ask(third, u"Words").get(u"Count"), Value(4));
    EXPECT_EQ(ask(third, u"Characters").get(u"Count"), Value(20));
    EXPECT_EQ(utf8(ask(third, u"Words", 2).get(u"Text")), "bien ");
    EXPECT_EQ(ask(third, u"Words", 2).get(u"Start"), Value(45));
    EXPECT_EQ(utf8(ask(third, u"Words", 5).get(u"Text")), "");
    EXPECT_EQ(ask(third, u"Words", 5).get(u"Start"), Value(57));

    const LateBound across = ask(all, u"Characters", 12, 13); // "re court.\rPol": words are cut at its ends
    EXPECT_EQ(ask(across, u"Words").get(u"Count"), Value(3));
    EXPECT_EQ(utf8(ask(across, u"Words", 1).get(u"Text")), "re ");
    EXPECT_EQ(utf8(ask(across, u"Words", 3).get(u"Text")), "Pol");
    EXPECT_EQ(ask(across, u"Paragraphs").get(u"Count"), Value(2));
    EXPECT_EQ(utf8(ask(across, u"Paragraphs", 2).get(u"Text")), "Pol");

    const LateBound mark = ask(all, u"Characters", 21, 1);
    EXPECT_EQ(utf8(mark.get(u"Text")), "\r");
    EXPECT_EQ(ask(mark, u"Words").get(u"Count"), Value(0));
    EXPECT_EQ(ask(text(u""), u"Words").get(u"Count"), Value(0));
    EXPECT_EQ(ask(text(u""), u"Paragraphs").get(u"Count"), Value(0));
}

TEST_F(TextRange, WritesThroughItself) {
    const LateBound all = text(u"Il faut faire");
    paint(ask(all, u"Words", 3), red);
    const LateBound word = ask(all, u"Words", 2);
    word.put(u"Text", u"sait ");
    EXPECT_EQ(utf8(whole().get(u"")), "Il sait faire");

    const LateBound last = ask(all, u"Words", 3);
    const LateBound added = ask(last, u"InsertAfter", u" mieux");
    EXPECT_EQ(utf8(added.get(u"Text")), " mieux");
    EXPECT_EQ(utf8(last.get(u"Text")), "faire mieux");
    EXPECT_EQ(colorOf(added), red);
    EXPECT_EQ(utf8(ask(last, u"InsertBefore", u"tout ").get(u"Text")), "tout ");
    EXPECT_EQ(utf8(last.get(u"Text")), "tout faire mieux");
    EXPECT_EQ(colorOf(ask(whole(), u"Words", 3)), red);
    EXPECT_NE(colorOf(ask(whole(), u"Words", 2)), red);

    last.call(u"Delete");
    EXPECT_EQ(last.get(u"Length"), Value(0));
    ask(whole(), u"Characters", 3, 0).put(u"Text", u" a\r\n");
    EXPECT_EQ(utf8(whole().get(u"Text")), "Il a\r sait ");
    EXPECT_FALSE(presentation->saved);
    frame.call(u"DeleteText");
    EXPECT_EQ(frame.get(u"HasText"), Value(msoFalse));
}

TEST_F(TextRange, FindsAndReplaces) {
    struct Case {
        std::u16string_view what;
        std::int32_t after;
        std::int32_t matchCase;
        std::int32_t wholeWords;
        std::int32_t start; ///< 0 for nothing
    };
    const std::u16string_view searched = u"Refaire, faire FAIRE faireé faire.";
    const std::vector<Case> cases{
        {u"faire", 0, msoFalse, msoFalse, 3},   {u"faire", 3, msoFalse, msoFalse, 10},
        {u"faire", 0, msoFalse, msoTrue, 10},   {u"faire", 14, msoFalse, msoTrue, 16},
        {u"faire", 14, msoTrue, msoTrue, 29},   {u"FAIRE", 0, msoTrue, msoFalse, 16},
        {u"faireÉ", 0, msoFalse, msoFalse, 22}, {u"faireÉ", 0, msoTrue, msoFalse, 0},
        {u"", 0, msoFalse, msoFalse, 0},        {u"faire", 99, msoFalse, msoFalse, 0},
        {u"faire.", 0, msoFalse, msoTrue, 29},
    };
    for (const Case& test : cases) {
        const LateBound all = text(searched);
        const LateBound found = ask(all, u"Find", test.what, test.after, test.matchCase, test.wholeWords);
        ASSERT_EQ(bool(found), test.start != 0) << automation::toUtf8(test.what) << " after " << test.after;
        const LateBound replaced =
            ask(all, u"Replace", test.what, u"créer", test.after, test.matchCase, test.wholeWords);
        ASSERT_EQ(bool(replaced), test.start != 0);
        if (found) {
            EXPECT_EQ(found.get(u"Start"), Value(test.start));
            EXPECT_EQ(replaced.get(u"Start"), Value(test.start));
            EXPECT_EQ(utf8(replaced.get(u"Text")), "créer");
            EXPECT_EQ(all.get(u"Length"), whole().get(u"Length"));
        }
    }
    EXPECT_EQ(errorNumber([&] { say(text(searched), u"Find", u"faire", -1); }), requestRefused);
}

TEST_F(TextRange, KeepsTheFormatOfEachWordReplaced) {
    const LateBound all = text(u"faire et faire");
    paint(ask(all, u"Words", 1), red);
    ask(ask(all, u"Words", 3), u"Font").put(u"Bold", true);
    while (ask(all, u"Replace", u"faire", u"créer", 0, msoTrue, msoTrue)) {
    }
    EXPECT_EQ(utf8(all.get(u"Text")), "créer et créer");
    EXPECT_EQ(colorOf(ask(all, u"Words", 1)), red);
    EXPECT_EQ(ask(ask(all, u"Words", 1), u"Font").get(u"Bold"), Value(msoFalse));
    EXPECT_EQ(ask(ask(all, u"Words", 3), u"Font").get(u"Bold"), Value(msoTrue));
}

TEST_F(TextRange, GivesColorsThatLive) {
    const LateBound all = text(u"caractères parfaitement lisibles");
    const LateBound word = ask(all, u"Words", 2);
    paint(word, red);
    const LateBound color = ask(ask(word, u"Font"), u"Color");
    EXPECT_EQ(Value(color.object()).to<std::int32_t>(), red);
    EXPECT_EQ(color.get(u"Type"), Value(msoColorTypeRGB));

    paint(whole(), blue);
    EXPECT_EQ(color.get(u"RGB"), Value(blue));
    color.put(u"SchemeColor", ppAccent1);
    presentation->colors.colors[ppAccent1 - 1] = 0x123456;
    EXPECT_EQ(colorOf(ask(whole(), u"Words", 2)), 0x123456);
    EXPECT_EQ(colorOf(ask(whole(), u"Words", 3)), blue);

    say(whole(), u"InsertBefore", u"Police et Taille des ");
    EXPECT_EQ(color.get(u"RGB"), Value(0x123456)) << "it follows its characters";
    say(whole(), u"Replace", u"parfaitement", u"tout à fait");
    paint(whole(), red);
    EXPECT_EQ(color.get(u"RGB"), Value(red)) << "the blank after the word is still there";
    ask(whole(), u"Paragraphs", 1).put(u"Text", u"rien");
    paint(whole(), blue);
    EXPECT_EQ(color.get(u"RGB"), Value(red)) << "the last colour of what is gone";
    EXPECT_EQ(errorNumber([&] { color.put(u"RGB", red); }), requestRefused);
}

TEST_F(TextRange, RaisesOnceItsShapeIsGone) {
    const LateBound all = text(u"un deux");
    const LateBound font = ask(all, u"Font");
    const LateBound color = ask(font, u"Color");
    const LateBound paragraphs = ask(all, u"ParagraphFormat");
    slide->remove(shape);
    shape.reset();
    const std::vector<std::pair<LateBound, std::u16string_view>> members{
        {frame, u"HasText"}, {frame, u"TextRange"}, {frame, u"MarginTop"},
        {all, u"Text"},      {all, u"Count"},       {all, u"Words"},
        {font, u"Bold"},     {color, u"RGB"},       {paragraphs, u"Alignment"},
        {all, u"BoundLeft"}, {all, u"Delete"},
    };
    for (const auto& asked : members) {
        EXPECT_EQ(errorNumber([&] { say(asked.first, asked.second); }), objectGone) << automation::toUtf8(asked.second);
    }
}

} // namespace text_range_tests
} // namespace simulator
