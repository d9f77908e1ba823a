#pragma once

#include "simulator/document/TextFit.h"
#include "simulator/objects/PowerPointObject.h"

#include <algorithm>
#include <cassert>

namespace simulator {

/// A stretch of a shape's text, as the objects that stand for it hold it: the shape weakly, the span as it was when the
/// object was made, changed only by the object's own edits. Members raise `errors::gone` where the shape is gone, and
/// an invalid request where it cannot hold text.
class TextPart {
public:
    TextPart(const ShapePtr& shape, Span stretch) noexcept : span(stretch), shape_(shape), pointer_(shape.get()) {}

    Span span;

    [[nodiscard]] ShapePtr shape() const { return alive(shape_); }
    /// Another stretch of the same text.
    [[nodiscard]] TextPart at(Span stretch) const noexcept {
        TextPart other = *this;
        other.span = stretch;
        return other;
    }

    /// Gives `use`, which must not let go of shapes, the shape's story and the part of the span that holds text of it.
    template <typename Use> auto read(const Use& use) const {
        if (shape_.expired()) {
            errors::gone();
        }
        const TextStory& story = storyOf(*pointer_);
        return use(story, story.clipped(span));
    }
    /// The same for a change of the story: the shape follows where it fits its text, and the presentation is no longer
    /// saved.
    template <typename Use> auto edit(const Use& use) const {
        const ShapePtr held = shape();
        TextStory& story = storyOf(*held);
        markChanged(*held);
        if constexpr (std::is_void_v<decltype(use(story, span))>) {
            use(story, story.clipped(span));
            fitToText(*held);
        } else {
            auto answer = use(story, story.clipped(span));
            fitToText(*held);
            return answer;
        }
    }

    /// Goes on looking at the part's characters while the text changes.
    [[nodiscard]] std::shared_ptr<TextAnchor> anchored() const { return storyOf(*shape()).anchor(span); }

    /// The value that a property has in all characters; nothing where they differ.
    template <typename Value> [[nodiscard]] std::optional<Value> common(Value CharacterFormat::*property) const {
        return read([property](const TextStory& story, Span within) {
            return commonOf(story.runs(within), [property](const TextStory::Run& run) { return run.format.*property; });
        });
    }
    /// The value that a property has in all paragraphs; nothing where they differ.
    template <typename Value> [[nodiscard]] std::optional<Value> common(Value ParagraphFormat::*property) const {
        return read([property](const TextStory& story, Span within) {
            return commonOf(story.paragraphFormats(within),
                            [property](const ParagraphFormat& format) { return format.*property; });
        });
    }
    /// Gives a property of all characters a value.
    template <typename Value> void change(Value CharacterFormat::*property, const Value& value) const {
        edit([&](TextStory& story, Span within) {
            story.format(within, [&](CharacterFormat& format) { format.*property = value; });
        });
    }
    /// Gives a property of all paragraphs a value.
    template <typename Value> void change(Value ParagraphFormat::*property, const Value& value) const {
        edit([&](TextStory& story, Span within) {
            story.formatParagraphs(within, [&](ParagraphFormat& format) { format.*property = value; });
        });
    }

private:
    template <typename Item, typename Read>
    static auto commonOf(std::span<const Item> items, const Read& read) -> std::optional<decltype(read(items[0]))> {
        assert(!items.empty());
        auto first = read(items.front());
        const bool same = std::all_of(items.begin() + 1, items.end(), [&](const Item& i) { return read(i) == first; });
        return same ? std::optional(std::move(first)) : std::nullopt;
    }
    [[nodiscard]] static TextStory& storyOf(Shape& shape);

    std::weak_ptr<Shape> shape_;
    Shape* pointer_; ///< to be read where the shape is alive: to share it costs more than most reading does
};

} // namespace simulator
