#pragma once

#include "exercises/Question.h"

namespace exercises {

using QuestionPtr = std::shared_ptr<Question>;

/// The question of a class, by the class's name ("Question0301"). Raises CannotCreateObject (429) where there is no
/// such class.
[[nodiscard]] QuestionPtr createQuestion(std::u16string_view className, const Environment& environment);

[[nodiscard]] QuestionPtr makeQuestion0301(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0302(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0303(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0304(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0305(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0306(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0307(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0308(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0309(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0310(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0311(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0312(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0313(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0314(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0315(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0316(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0317(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0318(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0319(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0320(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0321(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0322(const Environment& environment);
[[nodiscard]] QuestionPtr makeQuestion0323(const Environment& environment);

} // namespace exercises
