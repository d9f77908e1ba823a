#pragma once

#include "simulator/document/Grouping.h"
#include "simulator/document/NewShape.h"
#include "simulator/document/Presentation.h"

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

} // namespace simulator::file_tests
