#pragma once

#include "simulator/document/Constants.h"

#include <optional>

namespace simulator {

/// Yes, no, or mixed where there is no one answer.
[[nodiscard]] constexpr MsoTriState triState(std::optional<bool> answer) noexcept {
    return !answer ? msoTriStateMixed : *answer ? msoTrue : msoFalse;
}

} // namespace simulator
