#pragma once

#include "exercises/Question.h"

namespace exercises {

/// A new question of a class. Only the sources of the questions include this: the catalogue names the classes without
/// knowing them.
template <typename Class> QuestionPtr make(std::int32_t number, const Environment& environment) {
    return std::make_shared<Class>(number, environment);
}

} // namespace exercises
