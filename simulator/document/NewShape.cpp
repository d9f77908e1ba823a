#include "simulator/document/NewShape.h"

#include "automation/Text.h"
#include "simulator/document/TableGrid.h"

#include <algorithm>
#include <cmath>

namespace simulator::newShape {

namespace {

/// Shares of the font size that a character and a line of WordArt take, about.
constexpr float characterWidth = 0.6F;
constexpr float lineHeight = 1.2F;

ShapePtr make(MsoShapeType type, const Frame& frame) {
    auto shape = std::make_shared<Shape>();
    shape->type = type;
    shape->setFrame(frame);
    return shape;
}

void makeClear(Shape& shape) {
    shape.fill.visible = false;
    shape.line.visible = false;
}

/// Puts text in the middle of a shape.
void center(TextStory& text) {
    text.layout.anchor = msoAnchorMiddle;
    text.formatParagraphs({}, [](ParagraphFormat& format) { format.alignment = ppAlignCenter; });
}

void formatTitle(TextStory& text) {
    center(text);
    text.format({}, [](CharacterFormat& format) {
        format.size = 44;
        format.color = Color::of(ppTitle);
    });
}

void formatBody(TextStory& text, PpPlaceholderType type) {
    const bool isList = type == ppPlaceholderBody || type == ppPlaceholderVerticalBody || type == ppPlaceholderObject;
    text.format({}, [](CharacterFormat& format) { format.size = 32; });
    text.formatParagraphs({}, [isList](ParagraphFormat& format) {
        format.alignment = isList ? ppAlignLeft : ppAlignCenter;
        format.bullet = isList ? ppBulletUnnumbered : ppBulletNone;
    });
}

/// PowerPoint calls a table a group.
std::u16string_view beginningOfName(const Shape& shape) noexcept {
    switch (shape.type) {
    case msoAutoShape:
        return shape.autoShapeType == msoShapeRectangle ? u"Rectangle"
               : shape.autoShapeType == msoShapeOval    ? u"Oval"
                                                        : u"AutoShape";
    case msoFreeform: return u"Freeform";
    case msoGroup:
    case msoTable: return u"Group";
    case msoLine: return u"Line";
    case msoPicture: return u"Picture";
    case msoPlaceholder: return u"Rectangle";
    case msoTextEffect: return u"WordArt";
    case msoTextBox: return u"Text Box";
    }
    return u"AutoShape";
}

} // namespace

ShapePtr autoShape(std::int32_t autoShapeType, const Frame& frame) {
    ShapePtr shape = make(msoAutoShape, frame);
    shape->autoShapeType = autoShapeType;
    center(shape->text.emplace());
    shape->text->layout.wordWrap = false;
    return shape;
}

ShapePtr textBox(const Frame& frame) {
    ShapePtr shape = make(msoTextBox, frame);
    makeClear(*shape);
    shape->text.emplace().layout.autoSize = ppAutoSizeShapeToFitText;
    return shape;
}

ShapePtr line(const Node& begin, const Node& end) {
    ShapePtr shape = make(msoLine, {std::min(begin.x, end.x), std::min(begin.y, end.y), std::abs(end.x - begin.x),
                                    std::abs(end.y - begin.y)});
    shape->fill.visible = false;
    shape->horizontalFlip = end.x < begin.x;
    shape->verticalFlip = end.y < begin.y;
    return shape;
}

ShapePtr connector(MsoConnectorType type, const Node& begin, const Node& end) {
    ShapePtr shape = line(begin, end);
    shape->type = msoAutoShape;
    shape->connector = Connector{type, {}, {}};
    return shape;
}

ShapePtr picture(std::u16string_view fileName, const Frame& frame) {
    ShapePtr shape = make(msoPicture, frame);
    makeClear(*shape);
    shape->lockAspectRatio = true;
    const std::size_t folderEnd = fileName.find_last_of(u"\\/");
    const std::u16string_view name = fileName.substr(folderEnd == std::u16string_view::npos ? 0 : folderEnd + 1);
    shape->alternativeText = name.substr(0, name.find_last_of(u'.'));
    return shape;
}

ShapePtr wordArt(const TextEffect& effect, float left, float top) {
    std::size_t lines = 0;
    std::size_t longest = 1;
    for (std::size_t start = 0; start <= effect.text.size(); ++lines) {
        const std::size_t end = std::min(effect.text.find_first_of(u"\r\n\v", start), effect.text.size());
        longest = std::max(longest, end - start);
        start = end + 1;
    }
    ShapePtr shape = make(msoTextEffect, {left, top, static_cast<float>(longest) * effect.fontSize * characterWidth,
                                          static_cast<float>(lines) * effect.fontSize * lineHeight});
    shape->textEffect = effect;
    return shape;
}

ShapePtr freeform(std::vector<Node> corners) {
    ShapePtr shape = make(msoFreeform, {});
    shape->setNodes(std::move(corners));
    center(shape->text.emplace());
    return shape;
}

ShapePtr placeholder(PpPlaceholderType type, const Frame& frame) {
    ShapePtr shape = make(msoPlaceholder, frame);
    makeClear(*shape);
    shape->placeholder = type;
    shape->text.emplace().layout.orientation = orientationOf(type);
    if (isTitle(type)) {
        formatTitle(*shape->text);
    } else {
        formatBody(*shape->text, type);
    }
    return shape;
}

ShapePtr table(std::size_t rows, std::size_t columns, const Frame& frame) {
    constexpr float side = 72; // any, until the edges are put into the frame
    std::vector<ShapePtr> cells;
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            cells.push_back(
                make(msoAutoShape, {static_cast<float>(column) * side, static_cast<float>(row) * side, side, side}));
            cells.back()->autoShapeType = msoShapeRectangle;
            makeClear(*cells.back());
            cells.back()->text.emplace();
        }
    }
    ShapePtr shape = make(msoTable, frame);
    shape->table.emplace();
    TableGrid grid(cells, *shape->table);
    grid.divideBorders(true);
    grid.stretch(frame);
    grid.commit(shape);
    return shape;
}

std::u16string usualName(const Shape& shape) {
    return std::u16string(beginningOfName(shape)) + u" " + automation::decimal(shape.id);
}

} // namespace simulator::newShape
