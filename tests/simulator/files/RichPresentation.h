#pragma once

#include "automation/Text.h"
#include "simulator/document/EntryEffects.h"
#include "simulator/document/Grouping.h"
#include "simulator/document/Masters.h"
#include "simulator/document/NewShape.h"
#include "simulator/document/Presentation.h"
#include "simulator/document/SlideLayout.h"
#include "simulator/document/TableGrid.h"
#include "tests/trials/learners/Draw.h"

#include <array>

namespace simulator::file_tests {

/// Every member of a shape with a value that it does not have by itself.
inline ShapePtr richRectangle() {
    ShapePtr shape = newShape::autoShape(5, {10.125F, 20.5F, 300, 200});
    shape->name = u"Étiquette \U0001F600";
    shape->rotation = 100.5F;
    shape->horizontalFlip = shape->verticalFlip = shape->lockAspectRatio = true;
    shape->visible = false;
    shape->alternativeText = u"décrite";
    shape->formerGroup = 7;
    shape->tags.add(u"Identite", u"ZOR1");
    shape->tags.add(u"Vide", u"");
    shape->fill = {false, msoFillGradient, Color::direct(1), Color::of(ppAccent3), 0.25F, 0, 3, 4};
    shape->line = {false, 2.25F, Color::direct(0xABCDEF), 4, Color::direct(7), 9, 3, 0.25F, {2, 1, 3}, {6, 3, 1}};
    shape->shadow = {true, 6, Color::direct(3), -2.5F, 1.1F, true, 0.5F};
    shape->threeD = {true, 11, 72.3F, 5, 6, 3, 4, true, -90, 30.5F, true, Color::direct(8)};
    TextStory& text = *shape->text;
    text.replace({}, u"Un été\và part\r\rFin\r");
    text.format({3, 4}, [](CharacterFormat& format) {
        format = {u"Comic Sans MS", 14, true, true, true, Color::direct(9), true, true, true, -0.25F};
    });
    text.formatParagraphs({16, 0}, [](ParagraphFormat& format) {
        format = {ppAlignJustify, 4, ppBulletNumbered, 0x25A0, 0.9F, 0.2F, 0.3F};
    });
    text.layout = {ppAutoSizeShapeToFitText, false, 1.1F, 2.2F, 3.3F, 4.4F, msoTextOrientationUpward, msoAnchorBottom};
    return shape;
}

/// A presentation with some of everything that a file holds.
inline PresentationPtr richPresentation() {
    auto presentation = std::make_shared<Presentation>();
    presentation->snapToGrid = false;
    presentation->gridDistance = 28.375F;
    presentation->slideWidth = 793.75F;
    presentation->slideHeight = 1122.5F;
    presentation->colors.colors[3] = 0x7F8081;
    presentation->tags.add(u"Cours", std::u16string{u'a', char16_t{0xD83D}, u'b'}); // half of a character
    for (const PpSlideLayout layout : {ppLayoutTitle, ppLayoutBlank}) {
        const auto slide = std::make_shared<Slide>();
        slide->layout = layout;
        slide->tags.add(u"Identite", u"ZOR9");
        presentation->insert(slide, 0);
    }
    Slide& slide = *presentation->slides().front();
    slide.add(richRectangle());
    slide.add(newShape::freeform({{0, 0}, {50, 1.125F, true}, {60, 9, true}, {60, 70}, {0, 0}}));
    slide.add(newShape::wordArt({u"Bravo\n!", u"Impact", 44.5F, true, true, 12}, 5, 6));
    slide.add(newShape::placeholder(ppPlaceholderSubtitle, {1, 2, 3, 4}));
    slide.add(newShape::table(2, 3, {100, 300, 91, 80}));
    slide.add(richRectangle());
    slide.add(newShape::line({9, 9}, {1, 2}));
    slide.add(newShape::textBox({400, 300, 20, 20}));
    const std::vector<ShapePtr> last(slide.shapes().end() - 3, slide.shapes().end());
    group(slide, {group(slide, {last[0], last[1]}), last[2]});
    return presentation;
}

/// A shape of any kind with a format of its own, of every that the object model can ask for.
inline void formatByNumber(Shape& shape, std::int32_t number) {
    const auto share = static_cast<float>(number % 4) / 4;
    shape.rotation = static_cast<float>(number) * 5;
    shape.horizontalFlip = number % 3 == 0;
    shape.verticalFlip = number % 4 == 0;
    shape.line = {number % 10 != 0,
                  static_cast<float>(number % 6) * 0.75F,
                  Color::direct(number * 0x010203),
                  1 + number % 8,
                  Color::of(ppAccent2),
                  number % 9 == 0 ? 1 + number % 48 : -2,
                  1 + number % 5,
                  share,
                  {1 + number % 6, 1 + number % 3, 1 + number / 3 % 3},
                  {1 + number / 6 % 6, 1 + number / 9 % 3, 1 + number / 27 % 3}};
    shape.fill = {number % 11 != 0, msoFillGradient, Color::direct(0xFFFFFF - number * 0x010101), Color::of(ppAccent1),
                  share};
    shape.fill.gradientStyle = 1 + number % 7;
    shape.fill.gradientVariant = 1 + number % 4;
    shape.shadow.visible = number % 5 == 0;
    shape.shadow.offsetX = static_cast<float>(number % 7) - 3;
    shape.threeD.visible = number % 5 == 1;
    shape.threeD.direction = shape.threeD.lighting = 1 + number % 9;
    shape.threeD.softness = 1 + number % 3;
    shape.threeD.material = 1 + number % 4;
    TextStory& text = *shape.text;
    text.layout.orientation = static_cast<MsoTextOrientation>(1 + number % 6);
    text.layout.anchor = static_cast<MsoVerticalAnchor>(1 + number % 5);
    text.layout.centered = number % 2 == 0;
    text.layout.wordWrap = number % 7 != 0;
    if (number % 3 != 0) {
        return;
    }
    text.replace({}, u"Le  n\u00B0\r" + automation::decimal(number) + u"\tou plus\vloin");
    text.format({0, 30}, [](CharacterFormat& format) { format.size = 8; });
    text.format({1, 9}, [&](CharacterFormat& format) {
        constexpr std::array fonts{u"Arial", u"Times New Roman", u"Courier New", u"Verdana"};
        format = {fonts.at(static_cast<std::size_t>(number / 3) % fonts.size()),
                  9,
                  number % 2 == 0,
                  number % 4 == 0,
                  number % 5 == 0,
                  Color::direct(number),
                  number % 7 == 0,
                  number % 6 == 0,
                  number % 9 == 0,
                  share};
    });
    text.formatParagraphs({static_cast<std::size_t>(number % 2) * 9, 1}, [&](ParagraphFormat& format) {
        format = {static_cast<PpParagraphAlignment>(1 + number / 3 % 5),
                  1 + number % 5,
                  static_cast<PpBulletType>(number / 3 % 3),
                  0x2013,
                  1 + share,
                  share * 2,
                  1 - share};
    });
}

/// A slide for every effect that a file can name, the first of them with a layout each.
inline void addEffects(Presentation& presentation) {
    for (std::int32_t effect = 0; effect < 4096; ++effect) {
        if (!entryEffect::isKnown(effect) || entryEffect::effectOf(entryEffect::codeOf(effect)) != effect) {
            continue;
        }
        const std::size_t place = presentation.slides().size();
        presentation.insert(std::make_shared<Slide>(), place);
        Slide& added = *presentation.slides().back();
        added.transition = {
            effect,         1 + effect % 3, effect % 2 == 0, effect % 3 == 0, static_cast<float>(effect % 4) / 2,
            effect % 5 == 0};
        if (place < layouts().size()) {
            layOut(added, layouts()[place]);
        }
    }
}

inline Frame placeOnGrid(std::int32_t number) {
    const std::int32_t row = number / 14;
    return {static_cast<float>(8 + number % 14 * 50), static_cast<float>(8 + row * 53), 40, 31.125F};
}

/// Fills that a shape has no number for, and what is no AutoShape.
inline void addOtherShapes(Slide& slide) {
    constexpr std::int32_t patterns = 48;
    for (std::int32_t pattern = 1; pattern <= patterns + 3; ++pattern) {
        const ShapePtr shape = newShape::textBox(placeOnGrid(pattern));
        const bool isPattern = pattern <= patterns;
        shape->fill.visible = true;
        shape->fill.type = isPattern ? msoFillPatterned : pattern % 2 == 0 ? msoFillTextured : msoFillBackground;
        shape->fill.pattern = isPattern ? pattern : 0;
        slide.add(shape);
    }
    slide.shapes().front()->setFrame({-20000, 10, 50000, 50});
    for (const MsoConnectorType type : {msoConnectorStraight, msoConnectorElbow, msoConnectorCurve}) {
        slide.add(newShape::connector(type, {10, 300}, {static_cast<float>(type) * 60, 350}));
    }
    slide.add(newShape::freeform({{200, 300}, {250, 280, true}, {260, 390, true}, {290, 300}, {240, 360}}));
    slide.add(newShape::freeform({{300, 300}, {350, 280}, {380, 360}, {300, 300}}));
    const ShapePtr picture = newShape::picture(u"C:\\Cours\\Photo.bmp", {400, 300, 90, 60});
    const ShapePtr art = newShape::wordArt({u"Deux\rlignes", u"Georgia", 24, true, true, 3}, 500, 300);
    art->shadow.visible = true;
    slide.add(picture);
    slide.add(art);
    group(slide, {picture, art})->rotation = 30;
}

/// One change of a table, drawn at random.
inline void changeTable(TableGrid& grid, trials::learners::Draw& draw) {
    const TableAxis axis = draw.percent(50) ? TableAxis::Rows : TableAxis::Columns;
    const std::size_t place = draw.below(grid.count(axis));
    const auto anyCell = [&] {
        const std::size_t row = draw.below(grid.count(TableAxis::Rows));
        return grid.cellAt(row, draw.below(grid.count(TableAxis::Columns)));
    };
    const TablePart cell = anyCell();
    const Frame frame = grid.frame();
    switch (draw.below(8)) {
    case 0: grid.insert(axis, place + draw.below(2), place); break;
    case 1:
        if (grid.count(axis) > 1) {
            grid.erase(axis, place);
        }
        break;
    case 2: (void)grid.merge(cell, anyCell()); break;
    case 3: (void)grid.split(cell, 1 + place, 1 + draw.below(3)); break;
    case 4: grid.setLength(axis, place, static_cast<float>(draw.between(8, 50))); break;
    case 5: grid.mirror(); break;
    case 6: grid.addDiagonal(cell, place % 2 == 0 ? ppBorderDiagonalUp : ppBorderDiagonalDown); break;
    default: grid.stretch({frame.left, frame.top, static_cast<float>(draw.between(70, 140)), frame.height + 9}); break;
    }
}

/// Tables that have been changed in every way.
inline void addTables(Slide& slide) {
    trials::learners::Draw draw(1);
    for (std::int32_t number = 0; number < 20; ++number) {
        const std::int32_t row = number / 5;
        const Frame frame{static_cast<float>(8 + number % 5 * 148), static_cast<float>(8 + row * 145), 110, 90};
        const ShapePtr table = newShape::table(3, 3, frame);
        slide.add(table);
        for (std::size_t place = 0; place < 9; ++place) {
            TextStory& text = *TableGrid(*table).cellAt(place / 3, place % 3).shape->text;
            text.replace({}, std::u16string(1, static_cast<char16_t>(u'a' + place)));
            text.format({0, 1}, [&](CharacterFormat& format) { format.size = static_cast<float>(8 + place); });
        }
        for (std::int32_t change = 0; change < 2 + number / 3; ++change) {
            TableGrid grid(*table);
            changeTable(grid, draw);
            grid.commit(table);
        }
        TableGrid(*table).commit(table); // rows that have been merged are gone
    }
}

/// Every character of Latin-1 and some others, in rows; and rows in every font.
inline void addTexts(Slide& slide) {
    std::u16string all;
    for (char16_t each = u'!'; each < 0x120; each = each == u'~' ? u'\u00A0' : static_cast<char16_t>(each + 1)) {
        all += all.size() % 7 == 6 ? std::u16string{u' ', each} : std::u16string(1, each);
    }
    slide.add(newShape::textBox({20, 20, 300, 40}));
    slide.shapes().back()->text->replace({}, all + u" \u2019\t\u4E2D \U0001F600  fin");
    slide.shapes().back()->text->format({all.size() + 5, 1}, [](CharacterFormat& format) { format.bold = true; });
    slide.add(newShape::textBox({400, 20, 165, 40}));
    TextStory& text = *slide.shapes().back()->text;
    for (const std::u16string_view font :
         {u"Arial", u"Arial Black", u"Arial Narrow", u"Comic Sans MS", u"Courier New", u"Garamond", u"Impact",
          u"Tahoma", u"Times New Roman", u"Verdana", u"Inconnue"}) {
        const Span line = text.replace({text.text().size(), 0}, u"Portez ce whisky\r");
        text.format(line, [&](CharacterFormat& format) {
            format.fontName = font;
            format.bold = font.size() % 2 == 0;
        });
    }
}

/// Every layout, effect and master; every AutoShape, fill, line, anchor and flow; tables, and what joins and groups
/// shapes.
inline PresentationPtr everyKind() {
    auto presentation = std::make_shared<Presentation>();
    presentation->slideWidth = presentation->notesHeight = 756;
    presentation->slideHeight = presentation->notesWidth = 594;
    presentation->onSlides = {{true, u"5 mai"}, {true, u""}, {false, u""}, {true, u"Pied"}, false, 3};
    presentation->onPages = {{true, u""}, {false, u""}, {true, u"Titre"}, {false, u"Bas"}, true, 13};
    presentation->areOnTitleSlides = false;
    presentation->slideShow = {2, 2, 3, 3, 1, true, false, false};
    addEffects(*presentation);
    (void)addTitleMaster(*presentation);
    slideMasterOf(*presentation)->adoptBackground(newShape::autoShape(msoShapeRectangle, {}));
    (void)handoutMasterOf(*presentation);
    const auto shapes = std::make_shared<Slide>();
    presentation->insert(shapes, 0);
    std::size_t place = 1;
    for (const auto add : {addOtherShapes, addTables, addTexts}) {
        presentation->insert(std::make_shared<Slide>(), place);
        add(*presentation->slides()[place]);
        ++place;
    }
    for (std::int32_t type = 1; type <= lastAutoShape; ++type) {
        shapes->add(newShape::autoShape(type, placeOnGrid(type - 1)));
        formatByNumber(*shapes->shapes().back(), type);
    }
    shapes->shapes().back()->id = 5000; // beyond the numbers that one cluster has
    shapes->insert(shapes->shapes().front()->clone(), 0);
    shapes->shapes().front()->id = 1024;
    (void)notesPageOf(*shapes);
    return presentation;
}

} // namespace simulator::file_tests
