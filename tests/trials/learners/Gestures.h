#pragma once

#include "tests/trials/learners/Draw.h"
#include "tests/trials/learners/Scene.h"

namespace trials::learners {

/// A learner's hand on one slide.
struct Hand {
    const Scene& scene;
    Draw& draw;
    std::size_t slide; ///< from 1
};

/// Something that learners do, at random, in statements, one a line; PowerPoint may refuse it.
[[nodiscard]] std::u16string anyGesture(const Hand& hand);

} // namespace trials::learners
