#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace trials::cost {

/// Every access that a question's check must make in the passing attempt of its scenario file's first moves, in order,
/// one word a line:
///
///     1.Count   1/2.Type   5/2~.Text   1/2#     shapes of slide 1, its shape 2, the text of shape 2, its identity
///     Slides.Count   Slides(5)#                 slides of the active presentation, the identity of one
///     Shape.Type                                a member of an object that is at hand
///     {1/@# 1/@.Type}1-3                        the words with @ = 1, then 2, then 3
///
/// Blanks inside a word are underscores; lengths left out of `Words`, `Paragraphs` and `Characters` are not shown.
[[nodiscard]] std::string accessesOf(std::int32_t question);

/// Calls that the accesses of such words take: one for every member on the way to the value.
[[nodiscard]] std::size_t callsIn(std::string_view accesses);

} // namespace trials::cost
