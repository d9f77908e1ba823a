#include "host/world/TemporaryFolder.h"
#include "simulator/Machine.h"
#include "simulator/document/Constants.h"
#include "tests/support/Errors.h"
#include "tests/support/Script.h"

#include <gtest/gtest.h>

namespace power_point_tests {

using namespace simulator;
using automation::LateBound;
using automation::RunTimeError;
using tests::ask;
using tests::number;
using tests::say;
using tests::text;

constexpr std::int32_t ppSaveAsRTF = 6;
constexpr std::u16string_view folderName = u"C:\\Exercices\\";

std::u16string inFolder(std::u16string_view name) {
    return std::u16string(folderName) + std::u16string(name);
}

/// A PowerPoint that the user has started, driven through its application object alone.
class PowerPointTest : public testing::Test {
protected:
    PowerPointTest() {
        machine.startPowerPoint();
        machine.services().files.makeDirectories(folderName);
        application = LateBound(machine.application());
    }

    [[nodiscard]] LateBound presentations() const { return ask(application, u"Presentations"); }
    [[nodiscard]] LateBound window() const { return ask(application, u"ActiveWindow"); }
    [[nodiscard]] LateBound selection() const { return ask(window(), u"Selection"); }
    [[nodiscard]] LateBound curveState() const {
        return ask(ask(ask(ask(application, u"CommandBars"), u"Item", u"Curve"), u"Controls"), u"Item", 7);
    }
    /// A presentation with blank slides, the first one shown.
    [[nodiscard]] LateBound deck(std::int32_t slides) const {
        LateBound presentation = ask(presentations(), u"Add");
        for (std::int32_t i = 1; i <= slides; ++i) {
            ask(ask(presentation, u"Slides"), u"Add", i, ppLayoutBlank);
        }
        return presentation;
    }
    [[nodiscard]] static LateBound shapesOf(const LateBound& presentation, std::int32_t slide = 1) {
        return ask(ask(ask(presentation, u"Slides"), u"Item", slide), u"Shapes");
    }
    static LateBound rectangle(const LateBound& shapes) {
        return ask(shapes, u"AddShape", msoShapeRectangle, 20.0F, 20.0F, 100.0F, 60.0F);
    }
    [[nodiscard]] bool exists(std::u16string_view name) const {
        return std::filesystem::exists(machine.realPath(inFolder(name)));
    }

    host::TemporaryFolder folder;
    Machine machine{folder.path()};
    LateBound application;
};

TEST_F(PowerPointTest, SavesClosesAndOpensAgain) {
    {
        const LateBound deck = this->deck(2);
        EXPECT_EQ(text(deck, u"FullName"), u"Présentation1");
        EXPECT_EQ(text(deck, u"Path"), u"");
        const LateBound shape = rectangle(shapesOf(deck));
        shape.put(u"Name", u"Cadre");
        say(ask(shape, u"Tags"), u"Add", u"Identite", u"ZOR1");
        say(ask(deck, u"Tags"), u"Add", u"Cours", u"3");
        ask(ask(shape, u"TextFrame"), u"TextRange").put(u"Text", u"Méthodologie");
        EXPECT_EQ(number(deck, u"Saved"), msoFalse);
        say(deck, u"SaveAs", inFolder(u"Méthodologie"));
        EXPECT_EQ(number(deck, u"Saved"), msoTrue);
        EXPECT_EQ(text(deck, u"Name"), u"Méthodologie.ppt");
        EXPECT_EQ(text(deck, u"Path"), u"C:\\Exercices");
        deck.put(u"SnapToGrid", msoFalse);
        EXPECT_EQ(number(deck, u"Saved"), msoFalse);
        say(deck, u"Save");
        say(deck, u"Close");
        EXPECT_NE(errorNumber([&] { say(deck, u"Name"); }), noError);
        EXPECT_NE(errorNumber([&] { say(shape, u"Name"); }), noError);
    }
    EXPECT_EQ(number(presentations(), u"Count"), 0);
    EXPECT_EQ(number(ask(application, u"Windows"), u"Count"), 0);

    say(presentations(), u"Open", inFolder(u"méthodologie.PPT"), msoFalse, msoFalse, msoTrue);
    const LateBound deck = ask(application, u"ActivePresentation");
    EXPECT_EQ(number(ask(deck, u"Slides"), u"Count"), 2);
    EXPECT_EQ(number(deck, u"SnapToGrid"), msoFalse);
    EXPECT_EQ(text(ask(deck, u"Tags"), u"Item", u"cours"), u"3");
    const LateBound shape = ask(shapesOf(deck), u"Item", u"Cadre");
    EXPECT_EQ(text(ask(shape, u"Tags"), u"Item", u"IDENTITE"), u"ZOR1");
    EXPECT_EQ(text(ask(ask(shape, u"TextFrame"), u"TextRange"), u"Text"), u"Méthodologie");
    EXPECT_EQ(say(shape, u"Width"), automation::Value(100.0F));
}

TEST_F(PowerPointTest, OpensAFileOnceAndLocksIt) {
    platform::FileSystem& files = machine.services().files;
    const LateBound first = deck(1);
    say(first, u"SaveAs", inFolder(u"a.ppt"));
    const LateBound second = deck(1);
    say(second, u"SaveAs", inFolder(u"b.ppt"));
    EXPECT_TRUE(isSame(ask(application, u"ActivePresentation").object(), second.object()));

    const LateBound again = ask(presentations(), u"Open", inFolder(u"A.PPT"));
    EXPECT_TRUE(isSame(again.object(), first.object()));
    EXPECT_TRUE(isSame(ask(presentations(), u"Item", u"a.ppt").object(), first.object()));
    EXPECT_EQ(number(presentations(), u"Count"), 2);
    EXPECT_EQ(text(window(), u"Caption"), u"a.ppt");
    EXPECT_NE(errorNumber([&] { say(second, u"SaveAs", inFolder(u"a.ppt")); }), noError);

    EXPECT_EQ(errorNumber([&] { files.remove(inFolder(u"A.ppt")); }),
              static_cast<std::int32_t>(RunTimeError::PermissionDenied));
    EXPECT_EQ(errorNumber([&] { files.rename(inFolder(u"a.ppt"), inFolder(u"c.ppt")); }),
              static_cast<std::int32_t>(RunTimeError::PathAccess));
    say(first, u"Close");
    EXPECT_EQ(text(window(), u"Caption"), u"b.ppt");
    EXPECT_EQ(errorNumber([&] { files.remove(inFolder(u"a.ppt")); }), noError);
    EXPECT_NE(errorNumber([&] { ask(presentations(), u"Open", inFolder(u"a.ppt")); }), noError);
    EXPECT_EQ(number(presentations(), u"Count"), 1);

    say(window(), u"Close");
    EXPECT_EQ(number(presentations(), u"Count"), 0);
}

TEST_F(PowerPointTest, SavesTheOutlineWithoutRenaming) {
    const LateBound deck = this->deck(1);
    say(deck, u"SaveAs", inFolder(u"a.ppt"));
    say(deck, u"SaveAs", inFolder(u"Plan exo 3"), ppSaveAsRTF);
    EXPECT_TRUE(exists(u"Plan exo 3.rtf"));
    EXPECT_EQ(text(deck, u"Name"), u"a.ppt");
    EXPECT_NE(errorNumber([&] { say(deck, u"SaveAs", inFolder(u"x"), 99); }), noError);
}

TEST_F(PowerPointTest, TellsTheSelectionAsItIs) {
    const LateBound deck = this->deck(1);
    const LateBound shapes = shapesOf(deck);
    const LateBound first = rectangle(shapes);
    const LateBound second = rectangle(shapes);
    say(selection(), u"Unselect");
    const auto refused = [&](std::u16string_view member) {
        return errorNumber([&] { ask(selection(), member); }) != noError;
    };
    EXPECT_EQ(number(selection(), u"Type"), 0);
    EXPECT_TRUE(refused(u"ShapeRange"));
    EXPECT_TRUE(refused(u"TextRange"));
    EXPECT_NE(errorNumber([&] { say(selection(), u"Delete"); }), noError);

    say(first, u"Select");
    say(second, u"Select", msoFalse);
    EXPECT_EQ(number(selection(), u"Type"), 2);
    EXPECT_EQ(number(ask(selection(), u"ShapeRange"), u"Count"), 2);
    EXPECT_TRUE(refused(u"TextRange"));
    say(first, u"Delete");
    EXPECT_EQ(number(ask(selection(), u"ShapeRange"), u"Count"), 1);

    ask(ask(second, u"TextFrame"), u"TextRange").put(u"Text", u"deux mots");
    say(ask(ask(ask(second, u"TextFrame"), u"TextRange"), u"Words", 2), u"Select");
    EXPECT_EQ(number(selection(), u"Type"), 3);
    EXPECT_EQ(text(ask(selection(), u"TextRange"), u"Text"), u"mots");
    EXPECT_EQ(number(ask(selection(), u"ShapeRange"), u"Count"), 1);
    say(selection(), u"Delete");
    EXPECT_EQ(text(ask(ask(second, u"TextFrame"), u"TextRange"), u"Text"), u"deux ");

    say(second, u"Select");
    say(selection(), u"Cut");
    EXPECT_EQ(number(shapes, u"Count"), 0);
    EXPECT_EQ(number(selection(), u"Type"), 0);
    say(ask(window(), u"View"), u"Paste");
    EXPECT_EQ(number(shapes, u"Count"), 1);
}

TEST_F(PowerPointTest, SelectsItemsWithinTheirGroup) {
    const LateBound deck = this->deck(1);
    const LateBound shapes = shapesOf(deck);
    for (int i = 0; i < 3; ++i) {
        rectangle(shapes);
    }
    const LateBound group = ask(ask(shapes, u"Range"), u"Group");
    say(ask(ask(group, u"GroupItems"), u"Item", 2), u"Select");
    EXPECT_EQ(number(ask(ask(selection(), u"ShapeRange"), u"Item", 1), u"Type"), msoGroup);
    EXPECT_EQ(number(selection(), u"HasChildShapeRange"), msoTrue);
    EXPECT_EQ(number(ask(selection(), u"ChildShapeRange"), u"Count"), 1);
    say(selection(), u"Delete");
    EXPECT_EQ(number(shapes, u"Count"), 1);
    EXPECT_EQ(number(ask(group, u"GroupItems"), u"Count"), 2);
    EXPECT_EQ(number(selection(), u"HasChildShapeRange"), msoFalse);
}

TEST_F(PowerPointTest, PastesSlidesBehindTheOneShown) {
    const LateBound deck = this->deck(3);
    const LateBound slides = ask(deck, u"Slides");
    ask(slides, u"Item", 3).put(u"Name", u"Dernière");
    rectangle(shapesOf(deck, 1));
    say(ask(slides, u"Item", 1), u"Copy");
    const LateBound view = ask(window(), u"View");
    for (const std::int32_t shown : {2, 4}) {
        say(view, u"GotoSlide", shown);
        say(view, u"Paste");
        EXPECT_EQ(number(shapesOf(deck, shown + 1), u"Count"), 1) << shown;
    }
    EXPECT_EQ(number(slides, u"Count"), 5);
    EXPECT_EQ(text(ask(slides, u"Item", 4), u"Name"), u"Dernière");
}

TEST_F(PowerPointTest, TellsWhetherTheCurveSelectedIsOpen) {
    const LateBound deck = this->deck(1);
    const LateBound shapes = shapesOf(deck);
    const auto curve = [&](bool closed) {
        const LateBound builder = ask(shapes, u"BuildFreeform", 0, 10.0F, 10.0F);
        say(builder, u"AddNodes", 0, 0, 110.0F, 10.0F);
        say(builder, u"AddNodes", 0, 0, 60.0F, 90.0F);
        if (closed) {
            say(builder, u"AddNodes", 0, 0, 10.0F, 10.0F);
        }
        return ask(builder, u"ConvertToShape");
    };
    const LateBound open = curve(false);
    const LateBound closed = curve(true);
    const LateBound box = rectangle(shapes);
    const auto unavailable = [&] { return (number(curveState(), u"accState") & 1) != 0; };
    struct Case {
        std::string_view name;
        const LateBound* shape;
        std::int32_t replace;
        bool unavailable;
    };
    for (const auto& [name, shape, replace, expected] : std::initializer_list<Case>{
             {"open", &open, msoTrue, false},
             {"closed", &closed, msoTrue, true},
             {"rectangle", &box, msoTrue, true},
             {"open alone again", &open, msoTrue, false},
             {"open and closed", &closed, msoFalse, true},
         }) {
        say(*shape, u"Select", replace);
        EXPECT_EQ(unavailable(), expected) << name;
        EXPECT_EQ(number(curveState(), u"Enabled") == 0, expected) << name;
    }
    EXPECT_EQ(number(open, u"Type"), msoFreeform);
    EXPECT_NE(errorNumber([&] { say(curveState(), u"Execute"); }), noError);
    EXPECT_NE(errorNumber([&] { say(curveState(), u"accState", 1); }), noError);
    say(selection(), u"Unselect");
    EXPECT_TRUE(unavailable());
    say(open, u"Select");
    say(curveState(), u"Execute");
    EXPECT_TRUE(unavailable());
}

} // namespace power_point_tests
