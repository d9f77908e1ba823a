#pragma once

#include "tests/trials/learners/Draw.h"
#include "tests/trials/learners/Scene.h"

#include <span>

namespace trials::learners {

/// A learner's hand on one slide.
struct Hand {
    const Scene& scene;
    Draw& draw;
    std::size_t slide; ///< from 1

    /// The shapes of the slide, in words: `ActivePresentation.Slides(1).Shapes`.
    [[nodiscard]] std::u16string shapes() const;
    /// Number of shapes on it.
    [[nodiscard]] std::size_t count() const noexcept;
    /// One of its shapes, in words, at random; one that cannot exist where there is none.
    [[nodiscard]] std::u16string anyShape() const;
    /// Two or three of its shapes, in words.
    [[nodiscard]] std::u16string severalShapes() const;
    /// A length in points, in words: round, or on the edge of what a question asks for.
    [[nodiscard]] std::u16string length() const;
    [[nodiscard]] std::u16string color() const;
};

/// Something that learners do, in statements, one a line; PowerPoint may refuse it.
using Gesture = std::u16string (*)(const Hand&);

/// A gesture, and how many times in a while it is made.
struct Habit {
    std::size_t weight;
    Gesture gesture;
};

/// Puts words and numbers together.
template <typename... Parts> [[nodiscard]] std::u16string said(const Parts&... parts) {
    std::u16string text;
    const auto add = [&text](const auto& part) {
        if constexpr (std::is_integral_v<std::decay_t<decltype(part)>>) {
            for (const char digit : std::to_string(part)) {
                text += static_cast<char16_t>(digit);
            }
        } else {
            text += part;
        }
    };
    (add(parts), ...);
    return text;
}

/// New shapes.
namespace drawing {
[[nodiscard]] std::span<const Habit> habits() noexcept;
}
/// Shapes moved, copied, deleted, grouped, selected.
namespace handling {
[[nodiscard]] std::span<const Habit> habits() noexcept;
}
/// Fills, shadows, third dimensions.
namespace looks {
[[nodiscard]] std::span<const Habit> habits() noexcept;
}
/// Texts typed, replaced, coloured.
namespace typing {
[[nodiscard]] std::span<const Habit> habits() noexcept;
}
/// Slides, views, presentations.
namespace deck {
[[nodiscard]] std::span<const Habit> habits() noexcept;
}

/// Any gesture of all these.
[[nodiscard]] std::u16string anyGesture(const Hand& hand);

} // namespace trials::learners
