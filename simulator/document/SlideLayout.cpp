#include "simulator/document/SlideLayout.h"

#include "simulator/document/Masters.h"
#include "simulator/document/NewShape.h"
#include "simulator/document/Presentation.h"

#include <algorithm>

namespace simulator {

namespace {

/// A placeholder that a layout wants, and the shape of the slide that serves as it, where there is one.
struct Wanted {
    PpPlaceholderType type;
    LayoutPlace place;
    ShapePtr shape;
};

bool haveOnePurpose(PpPlaceholderType one, PpPlaceholderType other) noexcept {
    return one == other || (isTitle(one) && isTitle(other)) || (isText(one) && isText(other));
}

/// Placeholders of a layout with the shapes of a slide that serve as them, each shape as one.
std::vector<Wanted> matchUp(const Slide& slide, const Layout& layout) {
    std::vector<Wanted> wanted;
    const std::span<const LayoutPlace> places = placesOf(layout.arrangement);
    for (std::size_t i = 0; i < layout.size(); ++i) {
        wanted.push_back({layout.types.at(i), places[i], nullptr});
    }
    for (const ShapePtr& shape : slide.shapes()) {
        const auto free = std::find_if(wanted.begin(), wanted.end(), [&shape](const Wanted& each) {
            return shape->placeholder && !each.shape && haveOnePurpose(*shape->placeholder, each.type);
        });
        if (free != wanted.end()) {
            free->shape = shape;
        }
    }
    return wanted;
}

/// The place on the slides of a presentation.
Frame placeOf(const Wanted& wanted, const Slide& slide) {
    const PresentationPtr presentation = slide.presentation.lock();
    const float across = presentation->slideWidth / 720;
    const float down = presentation->slideHeight / 540;
    const Frame& frame = wanted.place.frame;
    return {frame.left * across, frame.top * down, frame.width * across, frame.height * down};
}

ShapePtr addPlaceholder(Slide& slide, const Wanted& wanted) {
    ShapePtr shape = newShape::placeholder(wanted.type, placeOf(wanted, slide));
    shape->text->format({}, [&wanted](CharacterFormat& format) { format.size = wanted.place.textSize; });
    slide.add(shape);
    return shape;
}

} // namespace

ShapePtr findPlaceholder(const Slide& slide, PpPlaceholderType type) noexcept {
    const auto found = std::find_if(slide.shapes().begin(), slide.shapes().end(), [type](const ShapePtr& shape) {
        return shape->placeholder && haveOnePurpose(*shape->placeholder, type);
    });
    return found == slide.shapes().end() ? nullptr : *found;
}

void layOut(Slide& slide, const Layout& layout) {
    const std::vector<Wanted> wanted = matchUp(slide, layout);
    slide.layout = layout.number;
    for (const ShapePtr& shape : std::vector<ShapePtr>(slide.shapes())) {
        const bool isEmpty = !shape->text || shape->text->text().empty();
        const bool serves =
            std::any_of(wanted.begin(), wanted.end(), [&shape](const Wanted& each) { return each.shape == shape; });
        if (shape->placeholder && isEmpty && !serves) {
            slide.remove(shape);
        }
    }
    for (const Wanted& each : wanted) {
        if (!each.shape) {
            addPlaceholder(slide, each);
            continue;
        }
        if (each.shape->placeholder != each.type && each.shape->text) {
            each.shape->text->layout.orientation = orientationOf(each.type);
        }
        each.shape->placeholder = each.type;
        each.shape->setFrame(placeOf(each, slide));
    }
}

ShapePtr restorePlaceholder(Slide& slide, PpPlaceholderType type) {
    if (slide.kind != SheetKind::Slide) {
        return restoreStandardPlaceholder(slide, type);
    }
    const Layout* const layout = findLayout(slide.layout);
    if (layout == nullptr) {
        return nullptr;
    }
    for (const Wanted& each : matchUp(slide, *layout)) {
        if (each.type == type && !each.shape) {
            return addPlaceholder(slide, each);
        }
    }
    return nullptr;
}

} // namespace simulator
