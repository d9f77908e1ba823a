#include "simulator/objects/ShapeCopies.h"

#include "simulator/document/NewShape.h"
#include "simulator/document/Stacking.h"
#include "simulator/document/TextFit.h"

#include <algorithm>

namespace simulator {

namespace {

/// How far a copy is moved aside, in points, to the right and down.
constexpr float aside = 12;

/// Where text is pasted, in points.
constexpr Frame pastedText{72, 72, 288, 28.875F};

void moveAside(Shape& shape) {
    Frame frame = shape.frame();
    frame.left += aside;
    frame.top += aside;
    shape.setFrame(frame);
}

bool isCovered(const Slide& slide, const Shape& shape) {
    return std::any_of(slide.shapes().begin(), slide.shapes().end(), [&shape](const ShapePtr& other) {
        return other->type == shape.type && other->frame() == shape.frame();
    });
}

} // namespace

std::vector<ShapePtr> duplicate(const std::vector<ShapePtr>& shapes) {
    std::vector<ShapePtr> copies;
    if (shapes.empty()) {
        return copies;
    }
    const SlidePtr slide = shapes.front()->slide.lock();
    for (const ShapePtr& shape : inStackingOrder(*slide, shapes)) {
        const ShapePtr copy = shape->clone();
        moveAside(*copy);
        slide->add(copy);
        copies.push_back(copy);
    }
    return copies;
}

void copyTo(Clipboard& clipboard, const std::vector<ShapePtr>& shapes) {
    clipboard.slides.clear();
    clipboard.text = {};
    clipboard.shapes.clear();
    if (shapes.empty()) {
        return;
    }
    for (const ShapePtr& shape : inStackingOrder(*shapes.front()->slide.lock(), shapes)) {
        clipboard.shapes.push_back(shape->clone());
    }
}

std::vector<ShapePtr> paste(const Clipboard& clipboard, Slide& slide) {
    std::vector<ShapePtr> pasted;
    for (const ShapePtr& shape : clipboard.shapes) {
        const ShapePtr copy = shape->clone();
        while (isCovered(slide, *copy)) {
            moveAside(*copy);
        }
        pasted.push_back(copy);
    }
    if (!clipboard.text.text().empty()) {
        pasted.push_back(newShape::textBox(pastedText));
        pasted.back()->text->replaceWith(clipboard.text, {});
        fitToText(*pasted.back());
    }
    for (const ShapePtr& shape : pasted) {
        slide.add(shape);
    }
    return pasted;
}

} // namespace simulator
