#include "automation/Text.h"
#include "host/world/TemporaryFolder.h"
#include "simulator/Machine.h"
#include "simulator/document/Constants.h"
#include "tests/support/Errors.h"
#include "tests/support/Script.h"

#include <gtest/gtest.h>

namespace shape_object_tests {

using namespace simulator;
using automation::Array;
using automation::LateBound;
using automation::Name;
using automation::Value;
using tests::ask;
using tests::number;
using tests::say;
using tests::text;

constexpr std::int32_t mixed = -2;
constexpr std::int32_t red = 255;

float points(const LateBound& shape, const Name& member) {
    return say(shape, member).to<float>();
}

using Place = std::array<float, 4>;

Place placeOf(const LateBound& shape) {
    return {points(shape, u"Left"), points(shape, u"Top"), points(shape, u"Width"), points(shape, u"Height")};
}

/// The names of a collection's elements, in order.
std::u16string namesOf(const LateBound& collection) {
    std::u16string names;
    for (std::int32_t i = 1; i <= number(collection, u"Count"); ++i) {
        names += text(ask(collection, u"Item", i), u"Name");
    }
    return names;
}

Array arrayOf(std::u16string_view names) {
    Array array;
    for (const char16_t name : names) {
        array.emplace_back(std::u16string(1, name));
    }
    return array;
}

std::u16string identity(const LateBound& shape) {
    return text(ask(shape, u"Tags"), u"Item", u"Identite");
}

void identify(const LateBound& shape, std::u16string_view identity) {
    say(ask(shape, u"Tags"), u"Add", u"Identite", identity);
}

/// A blank slide in PowerPoint's window, driven through the object model alone.
class ShapeObjectTest : public testing::Test {
protected:
    ShapeObjectTest() {
        machine.startPowerPoint();
        application = LateBound(machine.application());
        presentation = ask(ask(application, u"Presentations"), u"Add");
        slides = ask(presentation, u"Slides");
        slide = ask(slides, u"Add", 1, ppLayoutBlank);
        shapes = ask(slide, u"Shapes");
    }

    LateBound rectangle(float left = 20, float top = 20, float width = 100, float height = 60) const {
        return ask(shapes, u"AddShape", 1, left, top, width, height);
    }
    /// Rectangles named by a letter each, tagged with it, side by side.
    void addRectangles(std::u16string_view names) const {
        float left = 0;
        for (const char16_t letter : names) {
            const LateBound shape = rectangle(left, 10 + left, 80, 40);
            shape.put(u"Name", std::u16string(1, letter));
            identify(shape, std::u16string(1, letter));
            left += 100;
        }
    }
    LateBound shape(std::u16string_view name) const { return ask(shapes, u"Item", name); }
    [[nodiscard]] LateBound range(std::u16string_view names) const { return ask(shapes, u"Range", arrayOf(names)); }
    LateBound group(std::u16string_view names) const { return ask(range(names), u"Group"); }
    /// A freeform of straight segments.
    LateBound polyline(std::initializer_list<std::pair<float, float>> corners) const {
        Array array;
        for (const auto& [x, y] : corners) {
            array.emplace_back(Array{x, y});
        }
        return ask(shapes, u"AddPolyline", array);
    }
    /// True where PowerPoint offers nothing to close.
    [[nodiscard]] bool isClosed(const LateBound& freeform) const {
        say(freeform, u"Select");
        const LateBound curve = ask(ask(application, u"CommandBars"), u"Item", u"Curve");
        return (number(ask(ask(curve, u"Controls"), u"Item", 7), u"accState") & 1) != 0;
    }

    host::TemporaryFolder folder;
    simulator::Machine machine{folder.path()};
    LateBound application;
    LateBound presentation;
    LateBound slides;
    LateBound slide;
    LateBound shapes;
};

TEST_F(ShapeObjectTest, NewShapesComeInFrontUntaggedAndOfTheirKind) {
    rectangle();
    const Array curve{Array{0.0F, 0.0F}, Array{10.0F, 30.0F}, Array{40.0F, 30.0F}, Array{50.0F, 0.0F}};
    struct Case {
        std::string_view name;
        LateBound shape;
        MsoShapeType type;
        std::int32_t autoShapeType;
        MsoTriState hasTextFrame;
        MsoTriState isFilled;
        MsoTriState hasLine;
    };
    for (const auto& [name, shape, type, autoShapeType, hasTextFrame, isFilled, hasLine] : {
             Case{"arrow", ask(shapes, u"AddShape", 33, 0, 0, 9, 9), msoAutoShape, 33, msoTrue, msoTrue, msoTrue},
             Case{"text box", ask(shapes, u"AddTextbox", 1, 0, 0, 90, 30), msoTextBox, mixed, msoTrue, msoFalse,
                  msoFalse},
             Case{"line", ask(shapes, u"AddLine", 0, 0, 9, 9), msoLine, mixed, msoFalse, msoFalse, msoTrue},
             Case{"curve", ask(shapes, u"AddCurve", curve), msoFreeform, mixed, msoTrue, msoTrue, msoTrue},
             Case{"picture", ask(shapes, u"AddPicture", u"C:\\a.gif", 0, -1, 0, 0), msoPicture, mixed, msoFalse,
                  msoFalse, msoFalse},
             Case{"WordArt", ask(shapes, u"AddTextEffect", 0, u"Titre", u"Arial Black", 36, 0, 0, 50, 50),
                  msoTextEffect, mixed, msoFalse, msoTrue, msoTrue},
         }) {
        EXPECT_EQ(number(shape, u"Type"), type) << name;
        EXPECT_EQ(number(shape, u"AutoShapeType"), autoShapeType) << name;
        EXPECT_EQ(number(shape, u"HasTextFrame"), hasTextFrame) << name;
        EXPECT_EQ(number(ask(shape, u"Fill"), u"Visible"), isFilled) << name;
        EXPECT_EQ(number(ask(shape, u"Line"), u"Visible"), hasLine) << name;
        EXPECT_EQ(identity(shape), u"") << name;
    }
    EXPECT_EQ(number(ask(shapes, u"Item", 7), u"Type"), msoTextEffect);
    EXPECT_EQ(say(ask(shapes, u"Item", 2), u"HasTextFrame"), Value(std::int32_t{-1}));
    EXPECT_EQ(number(ask(ask(rectangle(), u"Fill"), u"ForeColor"), u"SchemeColor"), ppFill);

    const LateBound backwards = ask(shapes, u"AddLine", 90, 80, 10, 20);
    EXPECT_EQ(placeOf(backwards), (Place{10, 20, 80, 60}));
    EXPECT_EQ(number(backwards, u"HorizontalFlip"), msoTrue);
}

TEST_F(ShapeObjectTest, KeepsLengthsInEighthsOfAPoint) {
    const LateBound shape = rectangle(10.03F, 19.99F, 56.6F, 0.05F);
    EXPECT_EQ(placeOf(shape), (Place{10, 20, 56.625F, 0}));
    for (const auto& [given, kept] : {
             std::pair{311.6F, 311.625F},
             {56.69F, 56.75F},
             {56.68F, 56.625F},
             {-0.04F, 0.0F},
             {-0.1F, -0.125F},
         }) {
        shape.put(u"Left", given);
        EXPECT_EQ(points(shape, u"Left"), kept) << given;
    }
    EXPECT_EQ(errorNumber([&] { shape.put(u"Width", -1.0F); }), requestRefused);

    const LateBound locked = rectangle(0, 0, 100, 50);
    locked.put(u"LockAspectRatio", msoTrue);
    locked.put(u"Width", 60.0F);
    EXPECT_EQ(placeOf(locked), (Place{0, 0, 60, 30}));
    locked.put(u"LockAspectRatio", msoFalse);
    say(locked, u"ScaleHeight", 2.0F, msoFalse, msoScaleFromMiddle);
    EXPECT_EQ(placeOf(locked), (Place{0, -15, 60, 60}));
    say(locked, u"IncrementRotation", -30.0F);
    EXPECT_EQ(points(locked, u"Rotation"), 330);
}

TEST_F(ShapeObjectTest, RestacksShapes) {
    addRectangles(u"ABCDE");
    struct Case {
        std::u16string_view names;
        MsoZOrderCmd command;
        std::u16string_view order;
    };
    for (const auto& [names, command, order] : {
             Case{u"B", msoBringToFront, u"ACDEB"},
             Case{u"B", msoSendToBack, u"BACDE"},
             Case{u"A", msoBringForward, u"BCADE"},
             Case{u"B", msoSendBackward, u"BCADE"},
             Case{u"E", msoBringForward, u"BCADE"},
             Case{u"EB", msoBringForward, u"CBADE"},
             Case{u"DE", msoBringForward, u"CBADE"},
             Case{u"EB", msoSendToBack, u"BECAD"},
             Case{u"AB", msoBringToFront, u"ECDBA"},
             Case{u"DC", msoSendBackward, u"CDEBA"},
             Case{u"CD", msoSendBackward, u"CDEBA"},
         }) {
        say(range(names), u"ZOrder", command);
        EXPECT_EQ(namesOf(shapes), order) << automation::toUtf8(names);
    }
    EXPECT_EQ(number(shape(u"E"), u"ZOrderPosition"), 3);
    EXPECT_EQ(errorNumber([&] { say(shape(u"E"), u"ZOrder", 9); }), requestRefused);
}

TEST_F(ShapeObjectTest, GroupsKeepTheirItemsAsTheyWere) {
    addRectangles(u"ABCDE");
    const LateBound before = shape(u"B");
    const LateBound made = group(u"DB");
    EXPECT_EQ(number(made, u"Type"), msoGroup);
    EXPECT_EQ(identity(made), u"");
    EXPECT_EQ(placeOf(made), (Place{100, 110, 280, 240}));
    EXPECT_EQ(number(made, u"HasTextFrame"), msoFalse);
    made.put(u"Name", u"G");
    EXPECT_EQ(namesOf(shapes), u"ACGE");
    const LateBound items = ask(made, u"GroupItems");
    EXPECT_EQ(namesOf(items), u"BD");
    const LateBound item = ask(items, u"Item", u"b");
    EXPECT_TRUE(isSame(item.object(), before.object()));
    EXPECT_FALSE(isSame(item.object(), made.object()));
    EXPECT_EQ(identity(item), u"B");
    EXPECT_EQ(number(item, u"Child"), msoTrue);
    EXPECT_TRUE(isSame(ask(item, u"ParentGroup").object(), made.object()));
    EXPECT_EQ(errorNumber([&] { say(item, u"ZOrder", msoBringToFront); }), requestRefused);

    item.put(u"Left", 20.0F);
    EXPECT_EQ(placeOf(made), (Place{20, 110, 360, 240}));
    identify(made, u"groupe");

    EXPECT_EQ(namesOf(ask(made, u"Ungroup")), u"BD");
    EXPECT_EQ(namesOf(shapes), u"ACBDE");
    EXPECT_EQ(identity(shape(u"D")), u"D");
    EXPECT_EQ(errorNumber([&] { text(made, u"Name"); }), objectGone);
    EXPECT_EQ(errorNumber([&] { number(items, u"Count"); }), objectGone);

    const LateBound again = ask(ask(shapes, u"Range", u"D"), u"Regroup");
    EXPECT_EQ(namesOf(ask(again, u"GroupItems")), u"BD");
    EXPECT_EQ(identity(again), u"");
}

TEST_F(ShapeObjectTest, NestedGroupsAreOneItemAndFollowTheOuterFrame) {
    addRectangles(u"ABC");
    const LateBound inner = group(u"AB");
    inner.put(u"Name", u"I");
    const LateBound outer = group(u"IC");
    outer.put(u"Name", u"O");
    EXPECT_EQ(number(shapes, u"Count"), 1);
    EXPECT_EQ(namesOf(ask(outer, u"GroupItems")), u"IC");
    EXPECT_EQ(number(ask(ask(outer, u"GroupItems"), u"Item", 1), u"Type"), msoGroup);
    ASSERT_EQ(placeOf(outer), (Place{0, 10, 280, 240}));

    outer.put(u"Left", 100.0F);
    outer.put(u"Width", 140.0F);
    const LateBound items = ask(inner, u"GroupItems");
    EXPECT_EQ(placeOf(inner), (Place{100, 10, 90, 140}));
    EXPECT_EQ(placeOf(ask(items, u"Item", u"A")), (Place{100, 10, 40, 40}));
    EXPECT_EQ(placeOf(ask(items, u"Item", u"B")), (Place{150, 110, 40, 40}));

    outer.put(u"Width", 33.3F); // what touched the frame touches it still, whatever was rounded in between
    EXPECT_EQ(points(outer, u"Width"), 33.25F);
    const LateBound last = ask(ask(outer, u"GroupItems"), u"Item", u"C");
    EXPECT_EQ(points(last, u"Left") + points(last, u"Width"), 133.25F);

    ask(outer, u"Fill").put(u"Transparency", 0.5F);
    EXPECT_EQ(points(ask(ask(items, u"Item", 2), u"Fill"), u"Transparency"), 0.5F);

    EXPECT_EQ(errorNumber([&] { ask(inner, u"Ungroup"); }), requestRefused);
    say(ask(items, u"Item", u"B"), u"Delete"); // a group of one is none
    EXPECT_EQ(namesOf(ask(outer, u"GroupItems")), u"AC");
    EXPECT_EQ(errorNumber([&] { text(inner, u"Name"); }), objectGone);
    say(ask(ask(outer, u"GroupItems"), u"Item", u"C"), u"Delete");
    EXPECT_EQ(namesOf(shapes), u"A");
    EXPECT_EQ(number(shape(u"A"), u"Child"), msoFalse);
}

TEST_F(ShapeObjectTest, RefusesWhatAShapeCannotDo) {
    addRectangles(u"AB");
    const LateBound titled = ask(slides, u"Add", 2, ppLayoutTitle);
    const LateBound box = shape(u"A");
    for (const auto& [name, gesture] : std::initializer_list<std::pair<std::string_view, std::function<void()>>>{
             {"group of one", [&] { group(u"A"); }},
             {"group of placeholders", [&] { ask(ask(ask(titled, u"Shapes"), u"Range"), u"Group"); }},
             {"ungroup", [&] { ask(box, u"Ungroup"); }},
             {"regroup", [&] { ask(range(u"A"), u"Regroup"); }},
             {"items", [&] { ask(box, u"GroupItems"); }},
             {"parent group", [&] { ask(box, u"ParentGroup"); }},
             {"nodes", [&] { ask(box, u"Nodes"); }},
             {"placeholder format", [&] { ask(box, u"PlaceholderFormat"); }},
             {"WordArt text", [&] { text(ask(box, u"TextEffect"), u"Text"); }},
             {"text of a line", [&] { ask(ask(shapes, u"AddLine", 0, 0, 9, 9), u"TextFrame"); }},
             {"name taken", [&] { box.put(u"Name", u"b"); }},
             {"no such AutoShape", [&] { ask(shapes, u"AddShape", 999, 0, 0, 9, 9); }},
             {"apply without pick-up", [&] { say(box, u"Apply"); }},
             {"shape of a slide not shown", [&] { say(ask(ask(titled, u"Shapes"), u"Item", 1), u"Select"); }},
             {"paste of nothing", [&] { ask(shapes, u"Paste"); }},
             {"no such name", [&] { shape(u"Z"); }},
         }) {
        EXPECT_EQ(errorNumber(gesture), requestRefused) << name;
    }
    const auto error = errorOf([&] { ask(shapes, u"Item", 6); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), requestRefused);
    EXPECT_EQ(error->source(), u"Microsoft PowerPoint");
    EXPECT_EQ(error->description(),
              u"Shapes.Item : Entier hors limites. 6 n'appartient pas à la plage valide de 1 à 3.");
}

TEST_F(ShapeObjectTest, WhatIsDeletedIsGone) {
    const LateBound shape = rectangle();
    const std::vector<std::pair<std::string_view, std::function<void()>>> looks{
        {"shape", [&] { points(shape, u"Left"); }},
        {"changed", [&] { shape.put(u"Left", 1.0F); }},
        {"fill", [fill = ask(shape, u"Fill")] { number(fill, u"Type"); }},
        {"colour", [color = ask(ask(shape, u"Fill"), u"ForeColor")] { number(color, u"RGB"); }},
        {"tags", [tags = ask(shape, u"Tags")] { number(tags, u"Count"); }},
        {"range", [all = ask(shapes, u"Range")] { points(all, u"Left"); }},
        {"range changed", [all = ask(shapes, u"Range")] { all.put(u"Left", 1.0F); }},
        {"element", [all = ask(shapes, u"Range")] { ask(all, u"Item", 1); }},
        {"selected", [&] { say(shape, u"Select"); }},
    };
    for (const auto& [name, look] : looks) {
        EXPECT_EQ(errorNumber(look), noError) << name;
    }
    say(shape, u"Delete");
    for (const auto& [name, look] : looks) {
        EXPECT_EQ(errorNumber(look), objectGone) << name;
    }

    const LateBound left = rectangle();
    say(slide, u"Delete");
    EXPECT_EQ(errorNumber([&] { number(shapes, u"Count"); }), objectGone);
    EXPECT_EQ(errorNumber([&] { number(left, u"Type"); }), objectGone);
    EXPECT_EQ(errorNumber([&] { number(slide, u"SlideIndex"); }), objectGone);
    say(presentation, u"Close");
    EXPECT_EQ(errorNumber([&] { number(slides, u"Count"); }), objectGone);
}

TEST_F(ShapeObjectTest, LayoutsBringTheirPlaceholders) {
    struct Expected {
        PpPlaceholderType type;
        Place place;
    };
    const Expected title{ppPlaceholderTitle, {36, 21.625F, 648, 90}};
    struct Case {
        PpSlideLayout layout;
        std::vector<Expected> placeholders;
    };
    for (const auto& [layout, expected] : std::initializer_list<Case>{
             {ppLayoutTitle,
              {{ppPlaceholderCenterTitle, {54, 167.75F, 612, 115.75F}}, {ppPlaceholderSubtitle, {108, 306, 504, 138}}}},
             {ppLayoutText, {title, {ppPlaceholderBody, {36, 126, 648, 356.375F}}}},
             {ppLayoutTitleOnly, {title}},
             {ppLayoutBlank, {}},
         }) {
        const LateBound added = ask(ask(slides, u"Add", 1, layout), u"Shapes");
        ASSERT_EQ(number(added, u"Count"), static_cast<std::int32_t>(expected.size())) << layout;
        EXPECT_EQ(number(ask(added, u"Placeholders"), u"Count"), number(added, u"Count"));
        for (std::int32_t i = 1; i <= number(added, u"Count"); ++i) {
            const LateBound one = ask(ask(added, u"Placeholders"), u"Item", i);
            EXPECT_EQ(number(one, u"Type"), msoPlaceholder);
            EXPECT_EQ(number(ask(one, u"PlaceholderFormat"), u"Type"), expected[static_cast<std::size_t>(i) - 1].type);
            EXPECT_EQ(placeOf(one), expected[static_cast<std::size_t>(i) - 1].place) << layout;
        }
        EXPECT_EQ(number(added, u"HasTitle"), expected.empty() ? msoFalse : msoTrue);
        EXPECT_EQ(errorNumber([&] { ask(added, u"AddTitle"); }), requestRefused);
    }
    const LateBound laidOut = ask(slides, u"Add", 1, ppLayoutText);
    const LateBound placed = ask(laidOut, u"Shapes");
    ask(ask(ask(placed, u"Title"), u"TextFrame"), u"TextRange").put(u"Text", u"Conseils");
    laidOut.put(u"Layout", ppLayoutTitle);
    EXPECT_EQ(number(ask(ask(placed, u"Item", 1), u"PlaceholderFormat"), u"Type"), ppPlaceholderCenterTitle);
    laidOut.put(u"Layout", ppLayoutBlank); // what holds text stays
    EXPECT_EQ(text(ask(ask(ask(placed, u"Title"), u"TextFrame"), u"TextRange"), u"Text"), u"Conseils");
    EXPECT_EQ(number(placed, u"Count"), 1);
    laidOut.put(u"Layout", ppLayoutTitleOnly);
    say(ask(placed, u"Title"), u"Delete");
    const LateBound restored = ask(placed, u"AddPlaceholder", ppPlaceholderTitle, 10.0F);
    EXPECT_EQ(placeOf(restored), (Place{10, 21.625F, 648, 90}));
    EXPECT_EQ(identity(restored), u"");
    EXPECT_EQ(errorNumber([&] { laidOut.put(u"Layout", 99); }), requestRefused);
}

TEST_F(ShapeObjectTest, FreeformsCloseAndOpenWithTheirEnds) {
    const LateBound triangle = polyline({{10, 10}, {110, 10}, {60, 90}});
    EXPECT_FALSE(isClosed(triangle));
    EXPECT_EQ(placeOf(triangle), (Place{10, 10, 100, 80}));
    const LateBound nodes = ask(triangle, u"Nodes");
    const auto counts = [&](std::int32_t expected, bool closed) {
        return number(nodes, u"Count") == expected && isClosed(triangle) == closed;
    };
    struct Case {
        std::string_view name;
        std::function<void()> edit;
        std::int32_t count;
        bool closed;
    };
    for (const auto& [name, edit, count, closed] : std::initializer_list<Case>{
             {"back to the start", [&] { say(nodes, u"Insert", 3, 0, 0, 10.0F, 10.0F); }, 4, true},
             {"end moved away", [&] { say(nodes, u"SetPosition", 4, 10.0F, 50.0F); }, 4, false},
             {"end moved back", [&] { say(nodes, u"SetPosition", 4, 10.01F, 9.99F); }, 4, true},
             {"segment bent", [&] { say(nodes, u"SetSegmentType", 1, 1); }, 6, true},
             {"control removed", [&] { say(nodes, u"Delete", 2); }, 4, true},
             {"curve added", [&] { say(nodes, u"Insert", 2, 1, 1, 90, 0, 95, 0, 100, 5); }, 7, true},
             {"its end removed", [&] { say(nodes, u"Delete", 5); }, 4, true},
             {"resized", [&] { triangle.put(u"Width", 33.3F); }, 4, true},
             {"last corner removed", [&] { say(nodes, u"Delete", 4); }, 3, false},
             {"first corner removed", [&] { say(nodes, u"Delete", 1); }, 2, false},
         }) {
        edit();
        EXPECT_TRUE(counts(count, closed)) << name << ", " << number(nodes, u"Count") << " nodes";
    }
    EXPECT_EQ(errorNumber([&] { say(nodes, u"Delete", 1); }), requestRefused);
    EXPECT_EQ(errorNumber([&] { ask(nodes, u"Item", 3); }), requestRefused);

    triangle.put(u"Top", 200.0F); // corners follow the frame
    const auto corner = say(ask(nodes, u"Item", 2), u"Points").to<Array>();
    EXPECT_EQ(corner, (Array{Array{26.625F, 280.0F}}));

    const LateBound builder = ask(shapes, u"BuildFreeform", 1, 0.0F, 0.0F);
    EXPECT_EQ(errorNumber([&] { ask(builder, u"ConvertToShape"); }), requestRefused);
    EXPECT_EQ(errorNumber([&] { say(builder, u"AddNodes", 1, 1, 10.0F, 10.0F); }), requestRefused);
    say(builder, u"AddNodes", 1, 0, 60.0F, 0.0F);
    say(builder, u"AddNodes", 1, 1, 60.0F, 30.0F, 0.0F, 30.0F, 0.0F, 0.0F);
    const LateBound curve = ask(builder, u"ConvertToShape");
    EXPECT_TRUE(isClosed(curve));
    EXPECT_EQ(number(ask(curve, u"Nodes"), u"Count"), 7);
    EXPECT_EQ(number(ask(ask(curve, u"Nodes"), u"Item", 1), u"SegmentType"), msoSegmentCurve);
    EXPECT_EQ(errorNumber([&] { polyline({{1, 1}}); }), requestRefused);
}

TEST_F(ShapeObjectTest, FillsKeepTheirTypeUnlessToldOtherwise) {
    const LateBound fill = ask(rectangle(), u"Fill");
    struct Case {
        std::string_view name;
        std::function<void()> gesture;
        MsoFillType type;
    };
    for (const auto& [name, gesture, type] : std::initializer_list<Case>{
             {"fresh", [] {}, msoFillSolid},
             {"two colours", [&] { say(fill, u"TwoColorGradient", 1, 2); }, msoFillGradient},
             {"recoloured", [&] { ask(fill, u"ForeColor").put(u"RGB", red); }, msoFillGradient},
             {"patterned", [&] { say(fill, u"Patterned", 4); }, msoFillPatterned},
             {"transparent", [&] { fill.put(u"Transparency", 0.25F); }, msoFillPatterned},
             {"textured", [&] { say(fill, u"PresetTextured", 1); }, msoFillTextured},
             {"one colour", [&] { say(fill, u"OneColorGradient", 1, 1, 0.5F); }, msoFillGradient},
             {"ready-made", [&] { say(fill, u"PresetGradient", 1, 1, 7); }, msoFillGradient},
             {"picture", [&] { say(fill, u"UserPicture", u"C:\\a.gif"); }, msoFillPicture},
             {"background", [&] { say(fill, u"Background"); }, msoFillBackground},
             {"hidden", [&] { fill.put(u"Visible", msoFalse); }, msoFillBackground},
             {"solid", [&] { say(fill, u"Solid"); }, msoFillSolid},
         }) {
        gesture();
        EXPECT_EQ(number(fill, u"Type"), type) << name;
    }
    EXPECT_EQ(number(fill, u"Visible"), msoTrue);
    EXPECT_EQ(number(ask(fill, u"ForeColor"), u"RGB"), red);
    EXPECT_EQ(points(fill, u"Transparency"), 0.25F);
    EXPECT_EQ(number(fill, u"Pattern"), mixed);
    EXPECT_EQ(errorNumber([&] { fill.put(u"Transparency", 1.5F); }), requestRefused);
    EXPECT_EQ(errorNumber([&] { say(fill, u"TwoColorGradient", 1, 9); }), requestRefused);
    EXPECT_EQ(errorNumber([&] { ask(fill, u"ForeColor").put(u"RGB", 0x1000000); }), requestRefused);
}

TEST_F(ShapeObjectTest, ShowsAShadowOrTheThirdDimension) {
    const LateBound shape = rectangle();
    const LateBound shadow = ask(shape, u"Shadow");
    const LateBound threeD = ask(shape, u"ThreeD");
    struct Case {
        std::string_view name;
        std::function<void()> gesture;
        MsoTriState shadowVisible;
        MsoTriState threeDVisible;
        std::int32_t preset;
    };
    for (const auto& [name, gesture, shadowVisible, threeDVisible, preset] : std::initializer_list<Case>{
             {"fresh", [] {}, msoFalse, msoFalse, mixed},
             {"shadow", [&] { shadow.put(u"Visible", msoTrue); }, msoTrue, msoFalse, mixed},
             {"style 1", [&] { say(threeD, u"SetThreeDFormat", 1); }, msoFalse, msoTrue, 1},
             {"style 2", [&] { say(threeD, u"SetThreeDFormat", 2); }, msoFalse, msoTrue, 2},
             {"shadow style", [&] { shadow.put(u"Type", 6); }, msoTrue, msoFalse, 2},
             {"no shadow", [&] { shadow.put(u"Visible", msoFalse); }, msoFalse, msoFalse, 2},
             {"shown again", [&] { threeD.put(u"Visible", msoTrue); }, msoFalse, msoTrue, 2},
             {"deeper", [&] { threeD.put(u"Depth", 72.0F); }, msoFalse, msoTrue, mixed},
             {"shadow put away", [&] { shadow.put(u"Visible", msoFalse); }, msoFalse, msoTrue, mixed},
         }) {
        gesture();
        EXPECT_EQ(number(shadow, u"Visible"), shadowVisible) << name;
        EXPECT_EQ(number(threeD, u"Visible"), threeDVisible) << name;
        EXPECT_EQ(number(threeD, u"PresetThreeDFormat"), preset) << name;
    }
    EXPECT_EQ(errorNumber([&] { say(threeD, u"SetThreeDFormat", 21); }), requestRefused);
}

TEST_F(ShapeObjectTest, CopiesKeepTagsAndGetIdentitiesOfTheirOwn) {
    addRectangles(u"AB");
    const LateBound copy = ask(ask(shape(u"A"), u"Duplicate"), u"Item", 1);
    EXPECT_EQ(identity(copy), u"A");
    EXPECT_EQ(placeOf(copy), (Place{12, 22, 80, 40}));
    EXPECT_NE(text(copy, u"Name"), u"A");
    EXPECT_NE(number(copy, u"Id"), number(shape(u"A"), u"Id"));
    identify(copy, u"autre");
    EXPECT_EQ(identity(shape(u"A")), u"A");

    const LateBound made = group(u"AB");
    say(made, u"Cut");
    EXPECT_EQ(errorNumber([&] { text(made, u"Name"); }), objectGone);
    EXPECT_EQ(number(shapes, u"Count"), 1);
    const LateBound pasted = ask(ask(shapes, u"Paste"), u"Item", 1);
    EXPECT_EQ(namesOf(ask(pasted, u"GroupItems")), u"AB");
    EXPECT_EQ(identity(ask(ask(pasted, u"GroupItems"), u"Item", 2)), u"B");
    EXPECT_EQ(placeOf(pasted), (Place{0, 10, 180, 140}));
    EXPECT_EQ(placeOf(ask(ask(shapes, u"Paste"), u"Item", 1)), (Place{12, 22, 180, 140}));

    identify(slide, u"ZOR1");
    ask(slides, u"Add", 2, ppLayoutBlank);
    const LateBound second = ask(ask(slide, u"Duplicate"), u"Item", 1);
    EXPECT_EQ(number(second, u"SlideIndex"), 2);
    EXPECT_EQ(identity(second), u"ZOR1");
    EXPECT_NE(number(second, u"SlideID"), number(slide, u"SlideID"));
    EXPECT_EQ(identity(ask(ask(second, u"Shapes"), u"Item", 1)), u"autre");

    say(slide, u"Cut");
    EXPECT_EQ(number(slides, u"Count"), 2);
    const LateBound last = ask(ask(slides, u"Paste"), u"Item", 1);
    EXPECT_EQ(number(last, u"SlideIndex"), 3);
    EXPECT_EQ(number(ask(last, u"Shapes"), u"Count"), 3);
    EXPECT_EQ(errorNumber([&] { ask(ask(last, u"Shapes"), u"Paste"); }), requestRefused);
}

TEST_F(ShapeObjectTest, SlidesKeepTheirIdsWhereverTheyGo) {
    for (const std::int32_t index : {2, 3, 2}) {
        ask(slides, u"Add", index, ppLayoutBlank);
    }
    EXPECT_EQ(namesOf(slides), u"Slide1Slide4Slide2Slide3");
    const std::int32_t id = number(ask(slides, u"Item", u"Slide4"), u"SlideID");
    say(ask(slides, u"Item", 2), u"MoveTo", 4);
    EXPECT_EQ(namesOf(slides), u"Slide1Slide2Slide3Slide4");
    EXPECT_EQ(number(ask(slides, u"FindBySlideID", id), u"SlideIndex"), 4);
    say(ask(slides, u"Item", 4), u"Delete");
    EXPECT_EQ(text(ask(slides, u"Add", 1, ppLayoutBlank), u"Name"), u"Slide5");
    for (const auto& [name, gesture] : std::initializer_list<std::pair<std::string_view, std::function<void()>>>{
             {"no such id", [&] { ask(slides, u"FindBySlideID", id); }},
             {"behind the end", [&] { ask(slides, u"Add", 6, ppLayoutBlank); }},
             {"moved behind the end", [&] { say(slide, u"MoveTo", 5); }},
             {"no such layout", [&] { ask(slides, u"Add", 1, 99); }},
             {"name taken", [&] { slide.put(u"Name", u"slide2"); }},
         }) {
        EXPECT_EQ(errorNumber(gesture), requestRefused) << name;
    }
    EXPECT_EQ(number(slides, u"Count"), 4);
}

TEST_F(ShapeObjectTest, TagsAreFoundWithoutCase) {
    const LateBound tags = ask(rectangle(), u"Tags");
    say(tags, u"Add", u"Identite", u"ZOR1");
    say(tags, u"Add", u"été", u"x");
    say(tags, u"Add", u"IDENTITE", u"ZOR2");
    EXPECT_EQ(number(tags, u"Count"), 2);
    EXPECT_EQ(text(tags, u"Item", u"identite"), u"ZOR2");
    EXPECT_EQ(text(tags, u"Item", u"autre"), u"");
    EXPECT_EQ(text(tags, u"Name", 2), u"ÉTÉ");
    EXPECT_EQ(text(tags, u"Value", 1), u"ZOR2");
    EXPECT_EQ(errorNumber([&] { text(tags, u"Name", 3); }), requestRefused);
    say(tags, u"Delete", u"identite");
    say(tags, u"Delete", u"identite");
    EXPECT_EQ(number(tags, u"Count"), 1);
}

} // namespace shape_object_tests
