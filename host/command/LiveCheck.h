#pragma once

#include "host/world/World.h"

#include <string_view>

namespace host {

/// Something that the module looks at in the running PowerPoint or on the disk, and that a saved presentation does not
/// tell.
struct LiveCheck {
    std::int32_t question = 0; ///< 0 for all
    std::string_view what;     ///< in words, with what is taken for granted instead
    /// Brings about what is taken for granted, once the presentation is open; null where nothing has to be done.
    void (*assume)(World& world, const automation::ObjectPtr& presentation) = nullptr;

    [[nodiscard]] bool concerns(std::int32_t asked) const noexcept { return question == 0 || question == asked; }
};

/// All of them.
[[nodiscard]] const std::vector<LiveCheck>& liveChecks();

} // namespace host
