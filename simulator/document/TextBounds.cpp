#include "simulator/document/TextBounds.h"

#include "simulator/document/TextUnits.h"

#include <algorithm>
#include <cmath>

namespace simulator {

namespace {

constexpr float widthOfCharacter = 0.5F; ///< of the font size
constexpr float heightOfLine = 1.2F;     ///< of the font size

struct Size {
    float width = 0;
    float height = 0;
};

/// Size of a stretch of one line, wrapped where it does not fit.
Size sizeOf(const TextStory& story, Span line, float room) {
    float largest = 0;
    for (const TextStory::Run& run : story.runs(line)) {
        largest = std::max(largest, run.format.size);
    }
    const float width = static_cast<float>(line.length) * largest * widthOfCharacter;
    const bool wraps = story.layout.wordWrap && width > room && room > 0;
    const float rows = wraps ? std::ceil(width / room) : 1;
    return {wraps ? room : width, rows * largest * heightOfLine};
}

Size sizeOfAll(const TextStory& story, Span span, float room) {
    Size size;
    const std::size_t lines = countUnits(story, span, TextUnit::Line);
    for (std::size_t i = 0; i < lines; ++i) {
        const Size line = sizeOf(story, spanOfUnits(story, span, TextUnit::Line, i, 1), room);
        size = {std::max(size.width, line.width), size.height + line.height};
    }
    return size;
}

float shareAbove(MsoVerticalAnchor anchor) {
    const bool bottom = anchor == msoAnchorBottom || anchor == msoAnchorBottomBaseLine;
    return bottom ? 1 : anchor == msoAnchorMiddle ? 0.5F : 0;
}

} // namespace

Frame textBounds(const TextStory& story, Span span, const Frame& shape) {
    const TextLayout& layout = story.layout;
    const float room = shape.width - layout.marginLeft - layout.marginRight;
    const float free =
        shape.height - layout.marginTop - layout.marginBottom - sizeOfAll(story, {0, story.text().size()}, room).height;
    const float above = sizeOfAll(story, {0, span.start}, room).height;
    const Size size = sizeOfAll(story, span, room);
    return {shape.left + layout.marginLeft, shape.top + layout.marginTop + free * shareAbove(layout.anchor) + above,
            size.width, size.height};
}

} // namespace simulator
