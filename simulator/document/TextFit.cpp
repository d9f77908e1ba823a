#include "simulator/document/TextFit.h"

#include "simulator/document/TableGrid.h"
#include "simulator/document/TextFlow.h"

#include <cmath>

namespace simulator {

namespace {

/// The eighths of a point that hold a length.
float roundedUp(float points) noexcept {
    constexpr float noise = 0.001F;
    return std::ceil((points - noise) * 8) / 8;
}

/// Gives a side a length; of what it grows, so much goes before its edge.
void resize(Frame& frame, float Frame::*edge, float Frame::*side, float length, float shareBefore) noexcept {
    frame.*edge -= (length - frame.*side) * shareBefore;
    frame.*side = length;
}

/// Makes the rows of a cell as high as its text needs.
void fitRowsOf(const Shape& cell) {
    const ShapePtr table = cell.group();
    TableGrid grid(*table);
    if (!grid.isWhole()) {
        return;
    }
    const TablePart& part = grid.partOf(cell);
    const float before = grid.frame().height;
    grid.fitRows(part.begin(TableAxis::Rows), part.end(TableAxis::Rows) - part.begin(TableAxis::Rows));
    if (grid.frame().height != before) {
        grid.commit(table);
    }
}

} // namespace

float fittingHeight(const TextStory& text, float width) {
    const TextLayout& layout = text.layout;
    const float above = layout.marginTop + layout.marginBottom;
    return isUpright(layout.orientation)
               ? roundedUp(above)
               : roundedUp(flow(text, width - layout.marginLeft - layout.marginRight).height + above);
}

void resize(Shape& shape, const Frame& frame) {
    if (shape.type == msoTable) {
        if (TableGrid grid(shape); grid.isWhole()) {
            grid.stretch(frame);
            grid.commit(shape.items().front()->group());
        }
        return;
    }
    shape.setFrame(frame);
    fitToText(shape);
}

void fitToText(Shape& shape) {
    if (shape.text && shape.isInTable()) {
        fitRowsOf(shape);
        return;
    }
    if (!shape.text || shape.text->layout.autoSize != ppAutoSizeShapeToFitText) {
        return;
    }
    const TextLayout& layout = shape.text->layout;
    const float besides = layout.marginLeft + layout.marginRight;
    const float above = layout.marginTop + layout.marginBottom;
    Frame frame = shape.frame();
    if (isUpright(layout.orientation)) {
        const TextFlow text = flow(*shape.text, frame.height - above);
        resize(frame, &Frame::left, &Frame::width, roundedUp(text.height + besides), 0);
        if (!layout.wordWrap) {
            resize(frame, &Frame::top, &Frame::height, roundedUp(text.width + above), 0);
        }
    } else {
        const TextFlow text = flow(*shape.text, frame.width - besides);
        resize(frame, &Frame::top, &Frame::height, roundedUp(text.height + above), shareAbove(layout.anchor));
        if (!layout.wordWrap) {
            const PpParagraphAlignment alignment = shape.text->paragraphFormats().front().alignment;
            resize(frame, &Frame::left, &Frame::width, roundedUp(text.width + besides), shareToTheLeft(alignment));
        }
    }
    shape.setFrame(frame);
}

} // namespace simulator
