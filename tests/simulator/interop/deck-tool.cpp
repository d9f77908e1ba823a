#include "automation/Text.h"
#include "simulator/document/Grouping.h"
#include "simulator/document/NewShape.h"
#include "simulator/document/Presentation.h"
#include "simulator/document/SlideLayout.h"
#include "simulator/document/TableGrid.h"
#include "simulator/files/WholeFile.h"
#include "simulator/files/powerpoint/DocumentReader.h"
#include "simulator/files/powerpoint/DocumentWriter.h"

#include <fstream>
#include <iostream>
#include <map>

/// A deck for other programs to read, and what the embedded PowerPoint sees in theirs.
namespace {

using namespace simulator;

void save(const Presentation& presentation, const std::string& path) {
    std::ofstream(path, std::ios::binary) << powerpoint::writePresentation(presentation);
}

/// A text on one line: paragraph marks as |, line breaks as /.
std::string flat(const std::u16string& text) {
    std::u16string line = text;
    for (char16_t& unit : line) {
        unit = unit == TextStory::paragraphMark ? u'|' : unit == TextStory::lineBreak ? u'/' : unit;
    }
    return automation::toUtf8(line);
}

/// One line a shape: depth, type, AutoShape type, frame in points, fill, line, corners, text with its runs.
void dump(const Shape& shape, const ColorScheme& colors, int depth) {
    const Frame& frame = shape.frame();
    std::cout << "shape\t" << depth << '\t' << shape.type << '\t' << shape.autoShapeType << '\t' << frame.left << '\t'
              << frame.top << '\t' << frame.width << '\t' << frame.height << '\t'
              << (shape.fill.visible ? shape.fill.fore.in(colors) : -1) << '\t'
              << (shape.line.visible ? shape.line.color.in(colors) : -1) << '\t' << shape.nodes.size() << '\t'
              << (shape.closed ? 1 : 0) << '\t' << (shape.placeholder ? *shape.placeholder : 0) << '\t'
              << flat(shape.text         ? shape.text->text()
                      : shape.textEffect ? shape.textEffect->text
                                         : std::u16string());
    if (shape.text) {
        for (const TextStory::Run& run : shape.text->runs()) {
            std::cout << '\t' << run.length << ':' << run.format.size << ':' << run.format.color.in(colors);
        }
    }
    std::cout << '\n';
    for (const ShapePtr& item : shape.items()) {
        dump(*item, colors, depth + 1);
    }
}

void dump(const Presentation& presentation) {
    std::cout << "presentation\t" << presentation.slideWidth << '\t' << presentation.slideHeight << '\n';
    for (const SlidePtr& slide : presentation.slides()) {
        std::cout << "slide\t" << slide->layout << '\n';
        for (const ShapePtr& shape : slide->shapes()) {
            dump(*shape, presentation.colors, 0);
        }
    }
}

ShapePtr put(Slide& slide, const ShapePtr& shape, std::u16string_view text, Color fill) {
    slide.add(shape);
    shape->fill.fore = fill;
    shape->tags.add(u"Identite", u"ZOR" + automation::decimal(shape->id));
    if (shape->text && !text.empty()) {
        shape->text->replace({}, text);
    }
    return shape;
}

PresentationPtr made() {
    auto presentation = std::make_shared<Presentation>();
    for (const PpSlideLayout layout : {ppLayoutText, ppLayoutBlank, ppLayoutBlank}) {
        const auto slide = std::make_shared<Slide>();
        presentation->insert(slide, presentation->slides().size());
        layOut(*slide, *findLayout(layout));
    }
    Slide& first = *presentation->slides()[0];
    findPlaceholder(first, ppPlaceholderTitle)->text->replace({}, u"Méthodologie");
    TextStory& body = *findPlaceholder(first, ppPlaceholderBody)->text;
    body.replace({}, u"Premier point\rSecond point");
    body.format({0, 7}, [](CharacterFormat& format) {
        format.size = 40;
        format.color = Color::direct(0x0000FF);
    });
    Slide& second = *presentation->slides()[1];
    put(second, newShape::autoShape(msoShapeRectangle, {20, 20, 100, 60.5F}), u"rectangle", Color::direct(0x0000FF));
    put(second, newShape::autoShape(92, {140, 20, 100, 60}), u"", Color::direct(0x00FF00));
    put(second, newShape::autoShape(msoShapeOval, {260, 20, 100, 60}), u"ovale", Color::of(ppAccent1));
    put(second, newShape::textBox({380, 20, 200, 40}), u"zone de texte", Color::direct(0xFFFFFF));
    put(second, newShape::freeform({{40, 200}, {140, 200}, {90, 300}, {40, 200}}), u"", Color::direct(0xFF0000));
    put(second, newShape::line({200, 200}, {300, 260}), u"", Color::direct(0));
    put(second, newShape::wordArt({u"Bravo", u"Impact", 36, false, false, 0}, 400, 200), u"", Color::direct(0x00FFFF));
    const ShapePtr one = put(second, newShape::autoShape(4, {50, 350, 60, 60}), u"", Color::direct(0xFF00FF));
    const ShapePtr other = put(second, newShape::autoShape(7, {150, 350, 60, 90}), u"", Color::direct(0x808000));
    const ShapePtr third = put(second, newShape::autoShape(10, {300, 380, 60, 90}), u"", Color::direct(0x008080));
    group(second, {group(second, {one, other}), third});
    Slide& last = *presentation->slides()[2];
    const ShapePtr table = newShape::table(3, 2, {60, 80, 400, 150});
    last.add(table);
    TableGrid grid(*table);
    (void)grid.merge(grid.cellAt(0, 0), grid.cellAt(0, 1));
    grid.cellAt(0, 0).shape->text->replace({}, u"fusionnée");
    grid.cellAt(1, 1).shape->text->replace({}, u"case");
    grid.cellAt(1, 1).shape->fill = {true, msoFillSolid, Color::direct(0x0000FF)};
    grid.commit(table);
    return presentation;
}

/// What a learner does to another program's deck, on its last slide; `retitle` and `delete-slide` on its first.
const std::map<std::string, void (*)(Presentation&)> edits{
    {"move",
     [](Presentation& presentation) {
         Shape& shape = *presentation.slides().front()->shapes().front();
         const Frame& frame = shape.frame();
         shape.setFrame({frame.left + 8, frame.top, frame.width, frame.height});
     }},
    {"retitle",
     [](Presentation& presentation) {
         presentation.slides().front()->shapes().front()->text->replace({0, 3}, u"Retitr");
     }},
    {"delete",
     [](Presentation& presentation) {
         Slide& slide = *presentation.slides().back();
         slide.remove(slide.shapes()[1]);
     }},
    {"delete-slide", [](Presentation& presentation) { presentation.remove(presentation.slides().front()); }},
    {"add",
     [](Presentation& presentation) {
         put(*presentation.slides().back(), newShape::autoShape(msoShapeOval, {600, 20, 80, 80}), u"nouvelle",
             Color::direct(0x123456));
     }},
    {"add-to-group",
     [](Presentation& presentation) {
         Slide& slide = *presentation.slides().back();
         std::vector<ShapePtr> items = ungroup(slide, slide.shapes().back());
         items.push_back(
             put(slide, newShape::autoShape(msoShapeOval, {600, 20, 80, 80}), u"nouvelle", Color::direct(0x123456)));
         (void)group(slide, items);
     }},
};

int run(const std::vector<std::string>& words) {
    if (words.size() == 2 && words[0] == "make") {
        save(*made(), words[1]);
    } else if (words.size() == 2 && words[0] == "dump") {
        dump(*powerpoint::readPresentation(files::wholeFile(words[1]).value()));
    } else if (words.size() == 3 && words[0] == "copy") {
        save(*powerpoint::readPresentation(files::wholeFile(words[1]).value()), words[2]);
    } else if (words.size() == 3 && edits.contains(words[0])) {
        const PresentationPtr presentation = powerpoint::readPresentation(files::wholeFile(words[1]).value());
        edits.at(words[0])(*presentation);
        save(*presentation, words[2]);
    } else {
        std::cerr << "deck-tool make FILE | dump FILE | copy FILE TO | EDIT FILE TO, where EDIT is one of";
        for (const auto& [name, edit] : edits) {
            std::cerr << ' ' << name;
        }
        std::cerr << '\n';
        return 2;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
