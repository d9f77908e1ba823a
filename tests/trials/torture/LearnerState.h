#pragma once

#include "host/run/Snapshot.h"
#include "tests/trials/Host.h"

namespace trials::torture {

/// What is the learner's own: PowerPoint's four folders, its command bars, its startup dialog and the presentations
/// open in it.
struct LearnerState {
    /// As a world has them at the moment; PowerPoint must run for all but the folders.
    explicit LearnerState(World& world);

    std::array<std::u16string, 4> folders;
    std::vector<std::u16string> bars; ///< each in words, then the tooltips and the startup dialog
    std::vector<OpenPresentation> presentations;
};

/// The learner starts PowerPoint and leaves it with a presentation not saved yet, and bars arranged by hand.
void settleIn(World& world);

/// In words, each bar that is not as it was.
[[nodiscard]] std::vector<std::string> barsChanged(const LearnerState& before, const LearnerState& after);

} // namespace trials::torture
