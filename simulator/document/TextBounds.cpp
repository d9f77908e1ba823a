#include "simulator/document/TextBounds.h"

#include "simulator/document/TextFlow.h"

#include <algorithm>
#include <optional>

namespace simulator {

Frame textBounds(const TextStory& story, Span span, const Frame& shape) {
    const TextLayout& layout = story.layout;
    const float room = shape.width - layout.marginLeft - layout.marginRight;
    const TextFlow text = flow(story, room);
    const float free = shape.height - layout.marginTop - layout.marginBottom - text.height;
    float top = shape.top + layout.marginTop + free * shareAbove(layout.anchor);
    const float block = layout.centered ? text.width : room;
    std::optional<Frame> bounds;
    for (const TextRow& row : text.rows) {
        const std::size_t start = std::max(span.start, row.span.start);
        const std::size_t end = std::min(span.end(), row.span.end());
        if (start < end || (start == end && !bounds)) {
            const ParagraphFormat& format = story.paragraphFormats().at(row.paragraph);
            const float indent = indentOf(format);
            const float left = shape.left + layout.marginLeft + (room - block) / 2 + indent +
                               (block - indent - row.width) * shareToTheLeft(format.alignment) +
                               widthOf(story, {row.span.start, start - row.span.start});
            const float right = left + widthOf(story, {start, end - start});
            const Frame before = bounds.value_or(Frame{left, top, right - left, 0});
            const float leftmost = std::min(before.left, left);
            bounds = {leftmost, before.top, std::max(before.left + before.width, right) - leftmost,
                      top + row.height - before.top};
        }
        top += row.height;
    }
    return bounds.value_or(Frame{shape.left + layout.marginLeft, top, 0, 0});
}

} // namespace simulator
