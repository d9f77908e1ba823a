#pragma once

#include "simulator/document/TextFormat.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace simulator {

/// A stretch of a story: characters from `start` (from 0).
struct Span {
    std::size_t start = 0;
    std::size_t length = 0;

    [[nodiscard]] std::size_t end() const noexcept { return start + length; }
    friend bool operator==(const Span&, const Span&) = default;
};

/// Characters that someone goes on looking at while the text changes around them.
struct TextAnchor {
    Span span;              ///< where they stand now; empty once the last of them is gone
    CharacterFormat format; ///< how the first of them looked when they were gone
};

/// The anchors of one story. A copy of the story has none: who looks at the original does not look at the copy.
class TextAnchors {
public:
    TextAnchors() = default;
    ~TextAnchors() = default;
    TextAnchors(const TextAnchors& /*original*/) noexcept {}
    TextAnchors(TextAnchors&&) noexcept = default;
    TextAnchors& operator=(const TextAnchors& original) noexcept;
    TextAnchors& operator=(TextAnchors&&) noexcept = default;

    /// A new anchor on a span; it lives as long as its holder keeps it.
    std::shared_ptr<TextAnchor> add(Span span, const CharacterFormat& format);

    /// Follows an edit about to be made: `length` characters take the place of a span. `formatAt` gives the format of
    /// the character at a place before the edit.
    template <typename FormatAt> void follow(Span replaced, std::size_t length, const FormatAt& formatAt) {
        for (const std::weak_ptr<TextAnchor>& each : anchors_) {
            const std::shared_ptr<TextAnchor> anchor = each.lock();
            if (anchor && anchor->span.length != 0) {
                anchor->format = formatAt(anchor->span.start);
                anchor->span = moved(anchor->span, replaced, length);
            }
        }
    }

private:
    /// Where a span stands after an edit; text that replaces its characters is no part of it, text put between them is.
    [[nodiscard]] static Span moved(Span span, Span replaced, std::size_t length) noexcept;

    std::vector<std::weak_ptr<TextAnchor>> anchors_;
};

} // namespace simulator
