#pragma once

#include "exercises/Question.h"

#include <array>

namespace exercises {

/// A new question of a class, which knows its number. Each question's source instantiates it for its own class.
template <typename Class> [[nodiscard]] QuestionPtr make(std::int32_t number, const Environment& environment);

/// Number of the course's first question.
inline constexpr std::int32_t firstQuestion = 301;

/// The classes of the course's questions, in the order of their numbers.
inline constexpr auto questionClasses = std::to_array<QuestionPtr (*)(std::int32_t, const Environment&)>({
    &make<class Question0301>, &make<class Question0302>, &make<class Question0303>, &make<class Question0304>,
    &make<class Question0305>, &make<class Question0306>, &make<class Question0307>, &make<class Question0308>,
    &make<class Question0309>, &make<class Question0310>, &make<class Question0311>, &make<class Question0312>,
    &make<class Question0313>, &make<class Question0314>, &make<class Question0315>, &make<class Question0316>,
    &make<class Question0317>, &make<class Question0318>, &make<class Question0319>, &make<class Question0320>,
    &make<class Question0321>, &make<class Question0322>, &make<class Question0323>,
});

/// Number of the course's last question.
inline constexpr std::int32_t lastQuestion = firstQuestion + static_cast<std::int32_t>(questionClasses.size()) - 1;

/// The question of a number; nothing where the course has no such question.
[[nodiscard]] QuestionPtr createQuestion(std::int32_t number, const Environment& environment);

} // namespace exercises
