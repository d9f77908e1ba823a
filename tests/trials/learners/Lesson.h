#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace trials::learners {

/// The ways in which learners take one step towards what a question asks, in statements, one a line: the right one
/// first, then others, some right, some wrong, some nothing at all.
using Step = std::vector<std::u16string>;

/// How a question is worked on.
struct Lesson {
    std::int32_t question = 0;
    std::size_t slide = 1;             ///< the one that the question is about, from 1
    std::vector<std::string> outcomes; ///< what its check can come to: letters, "success", "error 0"
    std::vector<Step> steps;           ///< from the prepared presentation to the right answer
};

/// The lesson of a question, 301 to 323.
[[nodiscard]] const Lesson& lessonOf(std::int32_t question);

/// Lessons are written like this, with an empty line before each step:
///
///     lesson 309 slide 1: success A B C D E F G Z
///
///     @.AddShape msoShapeOval, 0, 0, 20, 20
///     @(1)~.Select | ActiveWindow.Selection.Delete
///
///     for @(2) @3(1)
///     nothing x2
///     ^.Delete
///
/// Each line of a step is one way; what is done twice as often stands for two. `@` stands for the shapes of the
/// lesson's slide, `@3` for those of the third one, `~` for the text of a shape; a bar separates statements. A step
/// that begins with `for` is one for each target that follows, which `^` stands for.
namespace lessons {
extern const std::string_view texts;    ///< 301 to 308
extern const std::string_view drawings; ///< 309 to 315
extern const std::string_view looks;    ///< 316 to 323
} // namespace lessons

} // namespace trials::learners
