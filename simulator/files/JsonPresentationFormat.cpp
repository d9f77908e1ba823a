#include "simulator/files/JsonPresentationFormat.h"

#include "simulator/files/JsonDocument.h"

namespace simulator {

/// The parts of a document that hold others. Found through their archive, and so in its namespace itself.
namespace json {

static void describe(Writer& archive, const TextStory& story) {
    archive("text", story.text());
    archive("runs", story.runs());
    archive("paragraphs", story.paragraphFormats());
    archive("layout", story.layout);
}

static void describe(const Reader& archive, TextStory& story) {
    std::u16string text;
    std::vector<TextStory::Run> runs;
    std::vector<ParagraphFormat> paragraphs;
    archive("text", text);
    archive("runs", runs);
    archive("paragraphs", paragraphs);
    try {
        story = TextStory(std::move(text), std::move(runs), std::move(paragraphs));
    } catch (const std::invalid_argument& error) {
        throw DamagedPresentation(error.what());
    }
    archive("layout", story.layout);
}

static void describe(Writer& archive, const TagList& tags) {
    archive("all", tags.all());
}

static void describe(const Reader& archive, TagList& tags) {
    std::vector<TagList::Tag> all;
    archive("all", all);
    for (const auto& [name, value] : all) {
        tags.add(name, value);
    }
}

/// What a shape holds besides its place and its items.
template <typename Archive, Either<Shape> T> void describeLooks(Archive& archive, T& shape) {
    archive("id", shape.id);
    archive("name", shape.name);
    archive("type", shape.type);
    archive("autoShapeType", shape.autoShapeType);
    archive("rotation", shape.rotation);
    archive("horizontalFlip", shape.horizontalFlip);
    archive("verticalFlip", shape.verticalFlip);
    archive("visible", shape.visible);
    archive("lockAspectRatio", shape.lockAspectRatio);
    archive("alternativeText", shape.alternativeText);
    archive("tags", shape.tags);
    archive("fill", shape.fill);
    archive("line", shape.line);
    archive("shadow", shape.shadow);
    archive("threeD", shape.threeD);
    archive("text", shape.text);
    archive("textEffect", shape.textEffect);
    archive("placeholder", shape.placeholder);
    archive("nodes", shape.nodes);
    archive("closed", shape.closed);
    archive("formerGroup", shape.formerGroup);
}

static void describe(Writer& archive, const ShapePtr& shape) {
    archive("frame", shape->frame());
    describeLooks(archive, *shape);
    archive("items", shape->items());
}

static void describe(const Reader& archive, ShapePtr& shape) {
    Frame frame;
    std::vector<ShapePtr> items;
    archive("frame", frame);
    archive("items", items);
    shape = std::make_shared<Shape>();
    shape->setFrame(frame);
    describeLooks(archive, *shape);
    require(items.empty() == (shape->type != msoGroup), "only groups have items");
    if (!items.empty()) {
        Shape::adopt(shape, std::move(items));
    }
}

template <typename Archive, Either<Slide> T> void describeSettings(Archive& archive, T& slide) {
    archive("id", slide.id);
    archive("name", slide.name);
    archive("layout", slide.layout);
    archive("tags", slide.tags);
}

static void describe(Writer& archive, const SlidePtr& slide) {
    describeSettings(archive, *slide);
    archive("shapes", slide->shapes());
}

static void describe(const Reader& archive, SlidePtr& slide) {
    std::vector<ShapePtr> shapes;
    archive("shapes", shapes);
    slide = std::make_shared<Slide>();
    describeSettings(archive, *slide);
    for (const ShapePtr& shape : shapes) {
        slide->insert(shape, slide->shapes().size());
    }
}

template <typename Archive, Either<Presentation> T> void describeSettings(Archive& archive, T& presentation) {
    archive("snapToGrid", presentation.snapToGrid);
    archive("slideWidth", presentation.slideWidth);
    archive("slideHeight", presentation.slideHeight);
    archive("colors", presentation.colors.colors);
    archive("tags", presentation.tags);
}

static void describe(Writer& archive, const Presentation& presentation) {
    describeSettings(archive, presentation);
    archive("slides", presentation.slides());
}

static void describe(const Reader& archive, PresentationPtr& presentation) {
    std::vector<SlidePtr> slides;
    archive("slides", slides);
    presentation = std::make_shared<Presentation>();
    describeSettings(archive, *presentation);
    for (const SlidePtr& slide : slides) {
        presentation->insert(slide, presentation->slides().size());
    }
}

} // namespace json

PresentationPtr JsonPresentationFormat::load(std::string_view bytes) const {
    const json::Json file = json::Json::parse(bytes, nullptr, false);
    json::require(!file.is_discarded(), "this is not JSON");
    PresentationPtr presentation;
    json::read(file, presentation);
    return presentation;
}

std::string JsonPresentationFormat::save(const Presentation& presentation) const {
    return json::write(presentation).dump(1);
}

} // namespace simulator
