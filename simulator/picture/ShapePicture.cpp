#include "simulator/picture/ShapePicture.h"

#include "automation/Text.h"
#include "simulator/picture/TextPicture.h"

#include <algorithm>

namespace simulator::picture {

namespace {

Markup::Attributes joined(Markup::Attributes first, const Markup::Attributes& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

float middleX(const Frame& frame) noexcept {
    return frame.left + frame.width / 2;
}

float middleY(const Frame& frame) noexcept {
    return frame.top + frame.height / 2;
}

Markup::Attributes turnOf(const Shape& shape) {
    if (shape.rotation == 0) {
        return {};
    }
    return {{"transform", "rotate(" + number(shape.rotation) + " " + number(middleX(shape.frame())) + " " +
                              number(middleY(shape.frame())) + ")"}};
}

/// The mirror in which a shape's outline is seen; nothing where it is not flipped.
std::string mirrorOf(const Shape& shape) {
    if (!shape.horizontalFlip && !shape.verticalFlip) {
        return {};
    }
    const Frame& frame = shape.frame();
    return "translate(" + number(shape.horizontalFlip ? 2 * middleX(frame) : 0) + " " +
           number(shape.verticalFlip ? 2 * middleY(frame) : 0) + ") scale(" + (shape.horizontalFlip ? "-1 " : "1 ") +
           (shape.verticalFlip ? "-1)" : "1)");
}

/// The transformation by which something is moved, and mirrored where it has to be.
Markup::Attributes moved(float x, float y, const std::string& mirror = {}) {
    std::string all = x == 0 && y == 0 ? mirror : "translate(" + number(x) + " " + number(y) + ") " + mirror;
    return all.empty() ? Markup::Attributes() : Markup::Attributes{{"transform", std::move(all)}};
}

bool isSeen(const Shape& shape) noexcept {
    return shape.fill.visible || shape.line.visible;
}

bool isEmptyPlaceholder(const Shape& shape) noexcept {
    return shape.placeholder && shape.text && shape.text->text().empty();
}

std::string rectangle(const Frame& frame) {
    return "M" + number(frame.left) + " " + number(frame.top) + "h" + number(frame.width) + "v" + number(frame.height) +
           "h" + number(-frame.width) + "Z";
}

} // namespace

void ShapePicture::draw(const Shape& shape) {
    if (!shape.visible) {
        return;
    }
    const Markup::Element group = out_.element("g", turnOf(shape));
    out_.leaf("title", {}, automation::toUtf8(shape.name));
    if (shape.isComposed()) {
        drawItems(shape);
    } else {
        drawLeaf(shape);
    }
}

void ShapePicture::drawItems(const Shape& group) {
    for (const ShapePtr& item : group.items()) {
        draw(*item);
    }
}

void ShapePicture::drawLeaf(const Shape& shape) {
    if (shape.textEffect) {
        if (shape.shadow.visible) {
            const Markup::Element cast = out_.element("g", moved(shape.shadow.offsetX, shape.shadow.offsetY));
            drawWordArt(shape, {{"fill", paint_.color(shape.shadow.color)}}, out_);
        }
        drawWordArt(shape, joined(paint_.fill(shape.fill), paint_.line(shape.line)), out_);
        return;
    }
    if (isSeen(shape)) {
        drawBody(shape);
    }
    if (shape.type == msoPicture) {
        drawPicture(shape);
    }
    if (isEmptyPlaceholder(shape)) {
        out_.leaf("path", {{"d", rectangle(shape.frame())},
                           {"fill", "none"},
                           {"stroke", "#888"},
                           {"stroke-width", "1.5"},
                           {"stroke-dasharray", "4 4"}});
    }
    drawText(shape, paint_, out_);
}

void ShapePicture::drawBody(const Shape& shape) {
    const Outline outline = outlineOf(shape);
    const Markup::Attributes mirror = moved(0, 0, mirrorOf(shape));
    drawShadow(shape, outline);
    drawDepth(shape, outline);
    const Markup::Attributes fill = outline.isOpen ? Markup::Attributes{{"fill", "none"}}
                                                   : joined(paint_.fill(shape.fill), {{"fill-rule", "evenodd"}});
    const Markup::Attributes line = paint_.line(shape.line);
    out_.leaf("path", joined(joined(joined({{"d", outline.path}}, fill), line), mirror));
    if (!outline.detail.empty()) {
        out_.leaf("path", joined(joined({{"d", outline.detail}, {"fill", "none"}}, line), mirror));
    }
    if (!outline.isKnown) {
        drawLabel(shape, "AutoShape " + std::to_string(shape.autoShapeType));
    }
}

void ShapePicture::drawShadow(const Shape& shape, const Outline& outline) {
    if (!shape.shadow.visible) {
        return;
    }
    const std::string color = paint_.color(shape.shadow.color);
    const bool isFilled = shape.fill.visible && !outline.isOpen;
    out_.leaf("path", joined(moved(shape.shadow.offsetX, shape.shadow.offsetY, mirrorOf(shape)),
                             {{"d", outline.path},
                              {"fill", isFilled ? color : "none"},
                              {"stroke", isFilled && !shape.line.visible ? "none" : color},
                              {"stroke-width", number(shape.line.weight)}}));
}

void ShapePicture::drawDepth(const Shape& shape, const Outline& outline) {
    if (!shape.threeD.visible) {
        return;
    }
    constexpr int layers = 6;
    constexpr float share = 0.35F; ///< of the depth, to the right and up
    const Color& base = shape.fill.visible && !outline.isOpen ? shape.fill.fore : shape.line.color;
    const std::string side = hex(darkened(base.in(paint_.colors()), 0.6F));
    const float step = shape.threeD.depth * share / layers;
    for (int layer = layers; layer > 0; --layer) {
        const float shift = step * static_cast<float>(layer);
        out_.leaf("path",
                  joined(moved(shift, -shift, mirrorOf(shape)), {{"d", outline.path},
                                                                 {"fill", outline.isOpen ? "none" : side},
                                                                 {"stroke", side},
                                                                 {"stroke-width", number(std::max(step, 1.0F))}}));
    }
}

void ShapePicture::drawPicture(const Shape& shape) {
    const Frame& frame = shape.frame();
    const std::string right = number(frame.left + frame.width);
    out_.leaf("path",
              {{"d", rectangle(frame) + "L" + right + " " + number(frame.top + frame.height) + "M" + right + " " +
                         number(frame.top) + "L" + number(frame.left) + " " + number(frame.top + frame.height)},
               {"fill", "#e8e8e8"},
               {"stroke", "#999"}});
    drawLabel(shape, automation::toUtf8(shape.alternativeText));
}

void ShapePicture::drawLabel(const Shape& shape, std::string_view text) {
    constexpr float largest = 12;
    constexpr float widthOfCharacter = 0.6F; ///< of the font size
    const float size = std::min(
        largest, shape.frame().width / (static_cast<float>(std::max<std::size_t>(text.size(), 1)) * widthOfCharacter));
    out_.leaf("text",
              {{"x", number(middleX(shape.frame()))},
               {"y", number(middleY(shape.frame()) + size / 3)},
               {"font-size", number(size)},
               {"text-anchor", "middle"},
               {"fill", "#333"}},
              text);
}

void ShapePicture::markSelected(const Shape& shape) {
    constexpr float reach = 2;  ///< of the frame beyond the shape
    constexpr float handle = 9; ///< side of a handle
    const Frame& inner = shape.frame();
    const Frame frame{inner.left - reach, inner.top - reach, inner.width + 2 * reach, inner.height + 2 * reach};
    const Markup::Element group = out_.element("g", turnOf(shape));
    out_.leaf("path", {{"d", rectangle(frame)},
                       {"fill", "none"},
                       {"stroke", "#1d5fa8"},
                       {"stroke-width", "1.8"},
                       {"stroke-dasharray", "5 3"}});
    std::string handles;
    for (int column = 0; column <= 2; ++column) {
        for (int row = 0; row <= 2; ++row) {
            if (column != 1 || row != 1) {
                handles +=
                    rectangle({frame.left + frame.width * static_cast<float>(column) / 2 - handle / 2,
                               frame.top + frame.height * static_cast<float>(row) / 2 - handle / 2, handle, handle});
            }
        }
    }
    out_.leaf("path", {{"d", handles}, {"fill", "#fff"}, {"stroke", "#1d5fa8"}, {"stroke-width", "1.5"}});
}

} // namespace simulator::picture
