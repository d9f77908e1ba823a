#include "simulator/document/SlideLayout.h"

#include "simulator/document/NewShape.h"
#include "simulator/document/Presentation.h"

#include <algorithm>

namespace simulator {

namespace {

constexpr Frame titlePlace{36, 21.625F, 648, 90};
constexpr std::array titleSlide{LayoutPlaceholder{ppPlaceholderCenterTitle, {54, 167.75F, 612, 115.75F}},
                                LayoutPlaceholder{ppPlaceholderSubtitle, {108, 306, 504, 138}}};
constexpr std::array titleAndText{LayoutPlaceholder{ppPlaceholderTitle, titlePlace},
                                  LayoutPlaceholder{ppPlaceholderBody, {36, 126, 648, 356.375F}}};
constexpr std::array titleOnly{LayoutPlaceholder{ppPlaceholderTitle, titlePlace}};

/// A place on a slide of 720 x 540 points, on the slides of a presentation.
Frame onSlide(const Frame& frame, const Presentation& presentation) noexcept {
    const float across = presentation.slideWidth / 720;
    const float down = presentation.slideHeight / 540;
    return {frame.left * across, frame.top * down, frame.width * across, frame.height * down};
}

bool isWanted(const Shape& shape, std::span<const LayoutPlaceholder> wanted) noexcept {
    return std::any_of(wanted.begin(), wanted.end(), [&shape](const LayoutPlaceholder& placeholder) {
        return isTitle(placeholder.type) == isTitle(*shape.placeholder);
    });
}

ShapePtr addPlaceholder(Slide& slide, const LayoutPlaceholder& wanted) {
    ShapePtr shape = newShape::placeholder(wanted.type, onSlide(wanted.frame, *slide.presentation.lock()));
    slide.add(shape, newShape::baseName(*shape));
    return shape;
}

} // namespace

std::optional<std::span<const LayoutPlaceholder>> placeholdersOf(PpSlideLayout layout) noexcept {
    switch (layout) {
    case ppLayoutTitle: return titleSlide;
    case ppLayoutText: return titleAndText;
    case ppLayoutTitleOnly: return titleOnly;
    case ppLayoutBlank: return std::span<const LayoutPlaceholder>();
    }
    return std::nullopt;
}

ShapePtr findPlaceholder(const Slide& slide, PpPlaceholderType type) noexcept {
    const auto found = std::find_if(slide.shapes().begin(), slide.shapes().end(), [type](const ShapePtr& shape) {
        return shape->placeholder && isTitle(*shape->placeholder) == isTitle(type);
    });
    return found == slide.shapes().end() ? nullptr : *found;
}

void layOut(Slide& slide, PpSlideLayout layout) {
    const std::span<const LayoutPlaceholder> wanted = placeholdersOf(layout).value();
    slide.layout = layout;
    for (const ShapePtr& shape : std::vector<ShapePtr>(slide.shapes())) {
        const bool isEmpty = !shape->text || shape->text->text().empty();
        if (shape->placeholder && isEmpty && !isWanted(*shape, wanted)) {
            slide.remove(shape);
        }
    }
    for (const LayoutPlaceholder& placeholder : wanted) {
        if (const ShapePtr shape = findPlaceholder(slide, placeholder.type)) {
            shape->placeholder = placeholder.type;
            shape->setFrame(onSlide(placeholder.frame, *slide.presentation.lock()));
        } else {
            addPlaceholder(slide, placeholder);
        }
    }
}

ShapePtr restorePlaceholder(Slide& slide, PpPlaceholderType type) {
    if (findPlaceholder(slide, type)) {
        return nullptr;
    }
    const auto known = placeholdersOf(slide.layout);
    if (!known) {
        return nullptr;
    }
    const auto wanted =
        std::find_if(known->begin(), known->end(), [type](const LayoutPlaceholder& at) { return at.type == type; });
    return wanted == known->end() ? nullptr : addPlaceholder(slide, *wanted);
}

} // namespace simulator
