#pragma once

#include "host/run/Snapshot.h"
#include "tests/trials/Host.h"

namespace trials::torture {

/// What is the learner's own: PowerPoint's four folders, its command bars and the presentations open in it.
struct LearnerState {
    /// As a world has them at the moment; PowerPoint must run for its bars and presentations.
    explicit LearnerState(World& world);

    std::array<std::u16string, 4> folders;
    std::vector<std::u16string> bars; ///< each in words, and the tooltips last
    std::vector<OpenPresentation> presentations;
};

} // namespace trials::torture
