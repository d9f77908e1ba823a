#pragma once

#include "simulator/document/Presentation.h"
#include "simulator/files/JsonArchive.h"

#include <concepts>

/// The plain parts of a document, member by member, for reading and writing alike.
namespace simulator::json {

/// A value of a type, to be written or to be read.
template <typename T, typename Type>
concept Either = std::same_as<std::remove_const_t<T>, Type>;

template <typename Archive, Either<Color> T> void describe(Archive& archive, T& color) {
    archive("scheme", color.scheme);
    archive("rgb", color.rgb);
    require(color.scheme >= ppNotSchemeColor && color.scheme <= ppAccent3, "a color is not of the scheme");
}

template <typename Archive, Either<Frame> T> void describe(Archive& archive, T& frame) {
    archive("left", frame.left);
    archive("top", frame.top);
    archive("width", frame.width);
    archive("height", frame.height);
}

template <typename Archive, Either<Node> T> void describe(Archive& archive, T& node) {
    archive("x", node.x);
    archive("y", node.y);
    archive("curve", node.curve);
}

template <typename Archive, Either<TagList::Tag> T> void describe(Archive& archive, T& tag) {
    archive("name", tag.first);
    archive("value", tag.second);
}

template <typename Archive, Either<Fill> T> void describe(Archive& archive, T& fill) {
    archive("visible", fill.visible);
    archive("type", fill.type);
    archive("fore", fill.fore);
    archive("back", fill.back);
    archive("transparency", fill.transparency);
    archive("pattern", fill.pattern);
    archive("gradientStyle", fill.gradientStyle);
    archive("gradientVariant", fill.gradientVariant);
}

template <typename Archive, Either<Line> T> void describe(Archive& archive, T& line) {
    archive("visible", line.visible);
    archive("weight", line.weight);
    archive("color", line.color);
    archive("dashStyle", line.dashStyle);
}

template <typename Archive, Either<Shadow> T> void describe(Archive& archive, T& shadow) {
    archive("visible", shadow.visible);
    archive("type", shadow.type);
    archive("color", shadow.color);
    archive("offsetX", shadow.offsetX);
    archive("offsetY", shadow.offsetY);
    archive("obscured", shadow.obscured);
}

template <typename Archive, Either<ThreeD> T> void describe(Archive& archive, T& threeD) {
    archive("visible", threeD.visible);
    archive("preset", threeD.preset);
    archive("depth", threeD.depth);
}

template <typename Archive, Either<TextEffect> T> void describe(Archive& archive, T& effect) {
    archive("text", effect.text);
    archive("fontName", effect.fontName);
    archive("fontSize", effect.fontSize);
    archive("bold", effect.bold);
    archive("italic", effect.italic);
    archive("preset", effect.preset);
}

template <typename Archive, Either<CharacterFormat> T> void describe(Archive& archive, T& format) {
    archive("fontName", format.fontName);
    archive("size", format.size);
    archive("bold", format.bold);
    archive("italic", format.italic);
    archive("underline", format.underline);
    archive("color", format.color);
}

template <typename Archive, Either<TextStory::Run> T> void describe(Archive& archive, T& run) {
    archive("length", run.length);
    archive("format", run.format);
}

template <typename Archive, Either<ParagraphFormat> T> void describe(Archive& archive, T& format) {
    archive("alignment", format.alignment);
    archive("indentLevel", format.indentLevel);
    archive("bullet", format.bullet);
    archive("bulletCharacter", format.bulletCharacter);
    archive("spaceWithin", format.spaceWithin);
    archive("spaceBefore", format.spaceBefore);
    archive("spaceAfter", format.spaceAfter);
}

template <typename Archive, Either<TextLayout> T> void describe(Archive& archive, T& layout) {
    archive("autoSize", layout.autoSize);
    archive("wordWrap", layout.wordWrap);
    archive("marginLeft", layout.marginLeft);
    archive("marginTop", layout.marginTop);
    archive("marginRight", layout.marginRight);
    archive("marginBottom", layout.marginBottom);
    archive("orientation", layout.orientation);
    archive("anchor", layout.anchor);
}

} // namespace simulator::json
