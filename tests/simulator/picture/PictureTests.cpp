#include "host/world/TemporaryFolder.h"
#include "simulator/Machine.h"
#include "simulator/document/Constants.h"
#include "simulator/files/WholeFile.h"
#include "tests/support/Script.h"

#include <gtest/gtest.h>

namespace picture_tests {

using namespace simulator;
using automation::LateBound;
using tests::ask;
using tests::say;

constexpr std::int32_t red = 255;
constexpr std::int32_t blue = 0xFF0000;

/// A slide of a presentation of its own, and what PowerPoint writes as its picture.
class PictureTest : public testing::Test {
protected:
    PictureTest() : machine_(folder_.path()) {
        machine_.startPowerPoint();
        const LateBound application(machine_.application());
        const LateBound presentation = ask(ask(application, u"Presentations"), u"Add");
        slide = ask(ask(presentation, u"Slides"), u"Add", 1, std::int32_t{ppLayoutBlank});
        shapes = ask(slide, u"Shapes");
    }

    [[nodiscard]] std::string picture() const {
        say(slide, u"Export", u"C:\\slide.svg", u"SVG", 360, 270);
        return files::wholeFile(machine_.realPath(u"C:\\slide.svg")).value();
    }
    [[nodiscard]] LateBound shape(std::int32_t kind) const {
        return ask(shapes, u"AddShape", kind, 100, 100, 200, 100);
    }
    [[nodiscard]] LateBound text(std::u16string_view words, float width) const {
        LateBound box = ask(shapes, u"AddTextbox", 1, 0, 0, width, 100);
        ask(ask(box, u"TextFrame"), u"TextRange").put(u"Text", words);
        return box;
    }

    LateBound slide;
    LateBound shapes;

private:
    host::TemporaryFolder folder_;
    Machine machine_;
};

/// True where all parts stand in a text, one behind the other.
testing::AssertionResult holdsInOrder(const std::string& text, const std::vector<std::string>& parts) {
    std::size_t place = 0;
    for (const std::string& part : parts) {
        place = text.find(part, place);
        if (place == std::string::npos) {
            return testing::AssertionFailure() << "no " << part << " at its place in\n" << text;
        }
    }
    return testing::AssertionSuccess();
}

TEST_F(PictureTest, ShapesStandInTheirOrderWithOutlineFillAndLine) {
    const LateBound arrow = shape(33);
    say(arrow, u"IncrementRotation", 90);
    ask(ask(arrow, u"Fill"), u"ForeColor").put(u"RGB", red);
    ask(arrow, u"Fill").put(u"Transparency", 0.5F);
    ask(ask(arrow, u"Line"), u"ForeColor").put(u"RGB", blue);
    const LateBound oval = shape(msoShapeOval);
    say(ask(oval, u"Fill"), u"TwoColorGradient", 1, 1);
    ask(oval, u"Line").put(u"Visible", std::int32_t{msoFalse});
    say(oval, u"Flip", std::int32_t{msoFlipHorizontal});
    ask(oval, u"ThreeD").put(u"Visible", std::int32_t{msoTrue});
    const LateBound hidden = shape(msoShapeRectangle);
    hidden.put(u"Visible", std::int32_t{msoFalse});
    say(oval, u"Select");
    EXPECT_TRUE(holdsInOrder(picture(),
                             {"viewBox=\"0 0 720 540\" width=\"360\" height=\"270\"", "rotate(90 200 150)",
                              "M100 125 250 125 250 100", "fill=\"#ff0000\" fill-opacity=\"0.5\"", "stroke=\"#0000ff\"",
                              "scale(-1 1)", "<linearGradient", "fill=\"url(#", "stroke-dasharray"}));
    EXPECT_EQ(picture().find("Rectangle"), std::string::npos);
    say(oval, u"ZOrder", std::int32_t{msoSendToBack});
    EXPECT_TRUE(holdsInOrder(picture(), {"<linearGradient", "#ff0000"}));
}

TEST_F(PictureTest, ShadowAndDepthLieBehindTheirShape) {
    const LateBound box = shape(msoShapeRectangle);
    ask(ask(box, u"Fill"), u"ForeColor").put(u"RGB", red);
    const LateBound shadow = ask(box, u"Shadow");
    shadow.put(u"Visible", std::int32_t{msoTrue});
    shadow.put(u"OffsetX", 7);
    shadow.put(u"OffsetY", -9);
    ask(shadow, u"ForeColor").put(u"RGB", blue);
    const std::string shadowed = picture();
    EXPECT_TRUE(holdsInOrder(shadowed, {"translate(7 -9)", "fill=\"#0000ff\"", "fill=\"#ff0000\""})) << shadowed;
    EXPECT_EQ(shadowed.find("#990000"), std::string::npos);

    const LateBound depth = ask(box, u"ThreeD");
    depth.put(u"Visible", std::int32_t{msoTrue});
    depth.put(u"Depth", 60);
    EXPECT_TRUE(holdsInOrder(picture(), {"translate(21 -21)", "fill=\"#990000\"", "translate(3.5 -3.5)",
                                         "fill=\"#990000\"", "fill=\"#ff0000\""}));
    say(box, u"Flip", std::int32_t{msoFlipHorizontal});
    EXPECT_TRUE(holdsInOrder(picture(), {"translate(21 -21) translate(400 0) scale(-1 1)"}));
    say(box, u"Flip", std::int32_t{msoFlipHorizontal});
    ask(box, u"Fill").put(u"Visible", std::int32_t{msoFalse});
    depth.put(u"Visible", std::int32_t{msoFalse});
    shadow.put(u"Visible", std::int32_t{msoFalse});
    EXPECT_EQ(picture().find("translate"), std::string::npos);
}

TEST_F(PictureTest, GroupsAreDrawnWhereTheyStandWithAllThatIsInThem) {
    for (const std::int32_t color : {red, blue, 0x00FF00}) {
        ask(ask(shape(msoShapeRectangle), u"Fill"), u"ForeColor").put(u"RGB", color);
    }
    EXPECT_TRUE(holdsInOrder(picture(), {"#ff0000", "#0000ff", "#00ff00"}));
    const LateBound group = ask(ask(shapes, u"Range", automation::Array{1, 3}), u"Group");
    group.put(u"Name", u"Paire");
    EXPECT_TRUE(holdsInOrder(picture(), {"#0000ff", "</g><g><title>Paire</title><g><title>", "#ff0000",
                                         "</g><g><title>", "#00ff00", "</g></g>"}));
    group.put(u"Visible", std::int32_t{msoFalse});
    EXPECT_EQ(picture().find("#ff0000"), std::string::npos);
    EXPECT_NE(picture().find("#0000ff"), std::string::npos);
}

TEST_F(PictureTest, TablesAreTheirCellsBehindTheirBorders) {
    const LateBound table = ask(ask(shapes, u"AddTable", 1, 2, 100, 100, 200, 50), u"Table");
    const LateBound cell = ask(ask(table, u"Cell", 1, 2), u"Shape");
    ask(cell, u"Fill").put(u"Visible", std::int32_t{msoTrue});
    ask(ask(cell, u"Fill"), u"ForeColor").put(u"RGB", red);
    ask(ask(cell, u"TextFrame"), u"TextRange").put(u"Text", u"deux");
    EXPECT_TRUE(holdsInOrder(picture(), {R"(d="M200 100)", R"(fill="#ff0000")", ">deux", R"(d="M200 100)", "stroke"}));
}

TEST_F(PictureTest, TextIsBrokenWhereItsBoxEndsAndKeepsItsColours) {
    const LateBound box = text(u"Fort contraste entre <couleur> & \u0007 lisibles", 120);
    const LateBound letters = ask(ask(ask(box, u"TextFrame"), u"TextRange"), u"Characters", 6, 4);
    ask(ask(letters, u"Font"), u"Color").put(u"RGB", red);
    const std::string drawn = picture();
    EXPECT_TRUE(holdsInOrder(
        drawn, {">Fort</text>", "fill=\"#ff0000\">cont<tspan fill=\"#000000\">raste</tspan>", "&lt;couleur&gt;"}));
    EXPECT_TRUE(holdsInOrder(drawn, {"&amp;", "lisibles"}));
    EXPECT_EQ(drawn.find('\a'), std::string::npos);
    box.put(u"Width", 700);
    EXPECT_FALSE(holdsInOrder(picture(), {">Fort</text>"}));
    const LateBound smile = text(u"a😀b", 200);
    const LateBound half = ask(ask(ask(smile, u"TextFrame"), u"TextRange"), u"Characters", 1, 2);
    ask(ask(half, u"Font"), u"Color").put(u"RGB", red);
    EXPECT_TRUE(holdsInOrder(picture(), {"fill=\"#ff0000\">a😀<tspan fill=\"#000000\">b</tspan>"}));
}

TEST_F(PictureTest, WordArtFillsItsFrame) {
    const LateBound art = ask(shapes, u"AddTextEffect", 0, u"Conseils", u"Arial Black", 36, std::int32_t{msoFalse},
                              std::int32_t{msoFalse}, 10, 20);
    art.put(u"Width", 333);
    EXPECT_TRUE(holdsInOrder(picture(), {"textLength=\"333\"", ">Conseils</text>"}));
}

} // namespace picture_tests
