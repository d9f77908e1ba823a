#pragma once

#include <ctime>

namespace trials {

/// Processor time that this process has taken so far, in whole seconds.
[[nodiscard]] inline long processorSeconds() {
    return static_cast<long>(std::clock() / CLOCKS_PER_SEC);
}

} // namespace trials
